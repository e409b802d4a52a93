#pragma once

#include <Qt>

class QKeyEvent;

namespace horvanta {

/// A key by its code, 0 where windows don't know it, and the bits of `KeyShift`.
struct KeyPress {
    int code;
    int shift;
};

KeyPress KeyPressOf(const QKeyEvent& event);

/// The bits of `KeyShift` for the modifiers that are held.
int ShiftOf(Qt::KeyboardModifiers held);

/// Notes that a key was let go, for `isHeld`.
void NoteRelease(const QKeyEvent& release);

/// Whether a press repeats a key that is held. X11 sends each repeat as a release and a press; where the press comes a
/// little late, the toolkit takes both for the user's, who can't press a key again so soon.
bool isHeld(const QKeyEvent& press);

bool isEnter(const QKeyEvent& event);

/// The key for a menu where a keyboard has none of its own; not every platform tells of it as such.
bool isMenuKey(const QKeyEvent& event);

/// What moves in a list or opens it.
bool isListKey(const QKeyEvent& event);

/// What edits a line of text. Home alone is not among them: it is a key of the windows.
bool isEditingKey(const QKeyEvent& event);

}  // namespace horvanta

#include "qt/keys.h"

#include "core/controls.h"

#include <QElapsedTimer>
#include <QKeyEvent>
#include <QKeySequence>

#include <algorithm>
#include <iterator>

namespace horvanta {
namespace {

struct KeyRow {
    int qtKey;
    bool keypad;
    KeyCode code;
};

constexpr KeyRow keyRows[] = {
    {Qt::Key_Backspace, false, KeyBackspace},
    {Qt::Key_Return, false, KeyEnter},
    {Qt::Key_Enter, true, KeyEnter},
    {Qt::Key_Shift, false, KeyShiftItself},
    {Qt::Key_Pause, false, KeyPause},
    {Qt::Key_Escape, false, KeyEscape},
    {Qt::Key_Space, false, KeySpace},
    {Qt::Key_PageUp, false, KeyPageUp},
    {Qt::Key_PageDown, false, KeyPageDown},
    {Qt::Key_End, false, KeyEnd},
    {Qt::Key_Home, false, KeyHome},
    {Qt::Key_Left, false, KeyLeft},
    {Qt::Key_Up, false, KeyUp},
    {Qt::Key_Right, false, KeyRight},
    {Qt::Key_Down, false, KeyDown},
    {Qt::Key_0, true, KeyNumeric0},
    {Qt::Key_2, true, KeyNumeric2},
    {Qt::Key_4, true, KeyNumeric4},
    {Qt::Key_5, true, KeyNumeric5},
    {Qt::Key_6, true, KeyNumeric6},
    {Qt::Key_8, true, KeyNumeric8},
    {Qt::Key_Period, true, KeyNumericPoint},
    {Qt::Key_Comma, true, KeyNumericPoint},
    {Qt::Key_Plus, true, KeyNumericPlus},
    {Qt::Key_Minus, true, KeyNumericMinus},
    {Qt::Key_Plus, false, KeyPlus},
    {Qt::Key_Equal, false, KeyPlus},
    {Qt::Key_Minus, false, KeyMinus},
    {Qt::Key_Underscore, false, KeyMinus},
};

/// Rows for the keypad hold there alone.
int CodeOf(const QKeyEvent& event) {
    const bool keypad = event.modifiers().testFlag(Qt::KeypadModifier);
    for (const KeyRow& row : keyRows) {
        if (row.qtKey == event.key() && (keypad || !row.keypad)) return row.code;
    }
    return 0;
}

int releasedKey = 0;
QElapsedTimer sinceRelease;

}  // namespace

void NoteRelease(const QKeyEvent& release) {
    releasedKey = release.key();
    sinceRelease.start();
}

bool isHeld(const QKeyEvent& press) {
    constexpr int tooSoon = 20;  // milliseconds
    const bool isLate = press.key() == releasedKey && sinceRelease.isValid() && !sinceRelease.hasExpired(tooSoon);
    return press.isAutoRepeat() || isLate;
}

KeyPress KeyPressOf(const QKeyEvent& event) { return {CodeOf(event), ShiftOf(event.modifiers())}; }

int ShiftOf(Qt::KeyboardModifiers held) {
    return (held.testFlag(Qt::ShiftModifier) ? ShiftKey : 0) | (held.testFlag(Qt::ControlModifier) ? ControlKey : 0) |
           (held.testFlag(Qt::AltModifier) ? AltKey : 0);
}

bool isEnter(const QKeyEvent& event) { return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter; }

bool isMenuKey(const QKeyEvent& event) { return event.key() == Qt::Key_F10 && event.modifiers() == Qt::ShiftModifier; }

bool isListKey(const QKeyEvent& event) {
    constexpr int keys[] = {Qt::Key_Up,   Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown,
                            Qt::Key_Home, Qt::Key_End,  Qt::Key_Space};
    return std::ranges::find(keys, event.key()) != std::end(keys);
}

bool isEditingKey(const QKeyEvent& event) {
    using enum QKeySequence::StandardKey;
    constexpr QKeySequence::StandardKey keys[] = {MoveToNextChar,
                                                  MoveToPreviousChar,
                                                  MoveToNextWord,
                                                  MoveToPreviousWord,
                                                  MoveToEndOfLine,
                                                  MoveToStartOfDocument,
                                                  MoveToEndOfDocument,
                                                  SelectNextChar,
                                                  SelectPreviousChar,
                                                  SelectNextWord,
                                                  SelectPreviousWord,
                                                  SelectStartOfLine,
                                                  SelectEndOfLine,
                                                  SelectStartOfDocument,
                                                  SelectEndOfDocument,
                                                  Backspace,
                                                  Delete};
    return std::ranges::any_of(keys, [&](QKeySequence::StandardKey key) { return event.matches(key); });
}

}  // namespace horvanta

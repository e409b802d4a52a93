#pragma once

#include <QString>

#include <string>

/// Texts with names of the user's in them, for places where the toolkit reads more than text.
namespace horvanta {

/// For a tooltip, which else shows what looks like HTML as such, pictures included.
QString PlainToolTip(const std::string& text);

/// For a title of a window, which else takes "[*]" for the place of the mark that something is unsaved.
QString PlainTitle(const std::string& text);

}  // namespace horvanta

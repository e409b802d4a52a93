#include "core/settings_text.h"

#include "core/text.h"

#include <algorithm>
#include <optional>

namespace horvanta {
namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view hexDigits = "0123456789ABCDEF";

bool isControl(char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7F'; }

std::string HexOf(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return {hexDigits[byte >> 4], hexDigits[byte & 15]};
}

/// The character of two hexadecimal digits.
std::optional<char> CharacterOf(std::string_view digits) {
    int code = 0;
    for (const char c : digits) {
        const char upper = c >= 'a' && c <= 'f' ? static_cast<char>(c - 'a' + 'A') : c;
        const std::size_t digit = hexDigits.find(upper);
        if (digit == std::string_view::npos) return std::nullopt;
        code = code * 16 + static_cast<int>(digit);
    }
    return digits.size() == 2 ? std::optional(static_cast<char>(code)) : std::nullopt;
}

// Names of sections and keys: what could be taken for something else stands as "%" and its code.

std::string EscapedName(std::string_view name) {
    constexpr std::string_view meaningful = "%/=[];#";
    std::string text;
    for (const char c : name) {
        const bool plain = !isControl(c) && meaningful.find(c) == std::string_view::npos;
        text += plain ? std::string(1, c) : "%" + HexOf(c);
    }
    return text;
}

std::string UnescapedName(std::string_view text) {
    std::string name;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto c = text[i] == '%' ? CharacterOf(text.substr(i + 1, 2)) : std::nullopt;
        name += c.value_or(text[i]);
        if (c) i += 2;
    }
    return name;
}

// Values: what does not stand plainly in a line stands in quotes, with escapes.

std::string EscapedValue(std::string_view value) {
    constexpr std::pair<char, const char*> named[] = {{'\\', "\\\\"}, {'"', "\\\""}, {'\n', "\\n"}, {'\t', "\\t"}};
    std::string text;
    for (const char c : value) {
        const auto* found = std::ranges::find(named, c, &std::pair<char, const char*>::first);
        if (found != std::end(named)) {
            text += found->second;
        } else {
            text += isControl(c) ? "\\x" + HexOf(c) : std::string(1, c);
        }
    }
    const bool isPlain = text == value && Trimmed(value) == value && !value.starts_with('@');
    return isPlain ? text : (value.starts_with('@') ? "\"@" : "\"") + text + "\"";
}

/// The character that stands behind a backslash at `i`, which moves to the end of the escape; a backslash that begins
/// none is itself.
char Unescaped(std::string_view text, std::size_t& i) {
    constexpr std::string_view names = "\\\"ntr";
    constexpr std::string_view meanings = "\\\"\n\t\r";
    const char next = i + 1 < text.size() ? text[i + 1] : '\0';
    if (const auto c = next == 'x' ? CharacterOf(text.substr(i + 2, 2)) : std::nullopt) {
        i += 3;
        return *c;
    }
    const std::size_t name = names.find(next);
    if (name == std::string_view::npos) return '\\';
    ++i;
    return meanings[name];
}

/// A quote that is not closed is part of the value, and so is a backslash at the end: neither reaches into the next
/// line. An "@" at the front is doubled, because a single one marks what is no text.
std::string UnescapedValue(std::string_view text) {
    text = Trimmed(text);
    const bool quoted = text.size() >= 2 && text.front() == '"' && text.back() == '"';
    if (quoted) text = text.substr(1, text.size() - 2);
    std::string value;
    for (std::size_t i = 0; i < text.size(); ++i) value += text[i] == '\\' ? Unescaped(text, i) : text[i];
    return value.starts_with("@@") ? value.substr(1) : value;
}

class Reader {
  public:
    /// Returns false for a line that can't be read. `isCut` says that its end is missing.
    bool Take(std::string_view line, bool isCut) {
        line = Trimmed(line);
        if (line.empty() || line.front() == ';' || line.front() == '#') return true;
        if (line.front() == '[') return TakeHeading(line);
        return TakeKey(line, isCut) && !isCut;
    }

    StoredApplication values;

  private:
    bool TakeHeading(std::string_view line) {
        const std::size_t end = line.rfind(']');
        section_ = UnescapedName(line.substr(1, end == std::string_view::npos ? end : end - 1));
        return end != std::string_view::npos;
    }

    bool TakeKey(std::string_view line, bool isCut) {
        const std::size_t equals = line.find('=');
        if (equals == std::string_view::npos) return false;
        const std::string_view name = Trimmed(line.substr(0, equals));
        const std::size_t slash = name.find('/');
        const bool isQualified = slash != std::string_view::npos;
        const std::string key = UnescapedName(isQualified ? name.substr(slash + 1) : name);
        const std::string value = UnescapedValue(line.substr(equals + 1));
        if (key.empty() || (isCut && value.empty())) return false;
        const std::string section = isQualified ? UnescapedName(name.substr(0, slash)) : section_;
        values[section][key] = value;
        return !section.empty();
    }

    std::string section_;
};

}  // namespace

bool isWorthKeeping(const StoredApplication& values) {
    return std::ranges::any_of(values, [](const auto& section) { return section.first != "Prog"; });
}

std::string SettingsText(std::string_view application, const StoredApplication& values) {
    std::string text = "[" + EscapedName(application) + "]\n";
    for (const auto& [section, keys] : values) {
        for (const auto& [key, value] : keys) {
            text += EscapedName(section) + "/" + EscapedName(key) + "=" + EscapedValue(value) + "\n";
        }
    }
    return text;
}

SettingsRead ReadSettingsText(std::string_view text) {
    if (text.starts_with(byteOrderMark)) text.remove_prefix(byteOrderMark.size());
    Reader reader;
    bool isWhole = true;
    while (!text.empty()) {
        const std::size_t end = text.find_first_of("\r\n");
        isWhole = reader.Take(text.substr(0, end), end == std::string_view::npos) && isWhole;
        text.remove_prefix(std::min(text.size(), end == std::string_view::npos ? end : end + 1));
    }
    return {std::move(reader.values), isWhole};
}

}  // namespace horvanta

#include "app/windows.h"

#include "core/text.h"

#include <utility>

namespace horvanta {
namespace {

constexpr double gap = 20;  // twips between windows that have not been moved

/// An edge of a window; one that was never moved stands where its row says, which may hang on another window.
Setting EdgeRow(WindowRow& row, std::string_view key, double Position::*edge) {
    constexpr double farthest = 1e6;  // twips
    return {row.form.name, std::string(key), "",
            [&row, edge](const std::string& text) {
                const double standard = row.standardPosition ? row.standardPosition().*edge : 0;
                const double kept = NumberOf(text, -farthest, farthest).value_or(standard);
                row.form.position.*edge = kept;
                row.form.positioned = row.form.positioned || kept != standard;
                return true;
            },
            [&row, edge] { return ExactText(row.form.standing.value_or(row.form.position).*edge); }};
}

Setting ColorRow(const std::string& key, const WindowColors& colors, const ColorPair& worn, bool isBackground) {
    return {"Color", key, std::to_string(colors.standard.Part(isBackground).Number()), {}, [&worn, isBackground] {
                return std::to_string(worn.Part(isBackground).Number());
            }};
}

}  // namespace

WindowRow Beside(const Form& form, WindowRow row) {
    row.standardPosition = [&form] {
        return Position{form.position.left + form.position.width + gap, form.position.top};
    };
    return row;
}

WindowRow Below(const Form& form, WindowRow row) {
    row.standardPosition = [&form] {
        return Position{form.position.left, form.position.top + form.position.height + gap};
    };
    return row;
}

Settings PositionRows(WindowRow& row) {
    return {EdgeRow(row, "Top", &Position::top),
            EdgeRow(row, "Left", &Position::left),
            {row.form.name, "Chk", TruthText(row.open != OpenAt::NoStart),
             [&row](const std::string& text) {
                 return TakeIf(TruthOf(text), [&row](bool checked) { *row.check = checked; });
             },
             [&row] { return TruthText(*row.check); }}};
}

Settings ColorRows(WindowColors& colors) {
    constexpr std::int32_t white = 0xffffff;
    Settings rows;
    if (colors.key.empty()) return rows;
    for (const bool isBackground : {true, false}) {
        const std::string ending = isBackground ? "BC" : "FC";
        rows.push_back(ColorRow(std::string(colors.key) + ending, colors, colors.Chosen(), isBackground));
        rows.back().take = [&colors, isBackground](const std::string& text) {
            return TakeIf(WholeOf(text, 0, white),
                          [&](std::int32_t number) { colors.SetColor(Color::FromNumber(number), isBackground); });
        };
        for (const auto& [control, shade, key] : colors.further) {
            if (!key.empty())
                rows.push_back(ColorRow(std::string(key) + ending, colors, *control.colors, isBackground));
        }
    }
    return rows;
}

}  // namespace horvanta

#include "qt/face.h"

#include "qt/plain_text.h"

namespace horvanta {

QColor ToQColor(Color color) { return {color.red, color.green, color.blue}; }

Color ToColor(const QColor& color) {
    return {static_cast<std::uint8_t>(color.red()), static_cast<std::uint8_t>(color.green()),
            static_cast<std::uint8_t>(color.blue())};
}

void ShowTip(QWidget& widget, const std::string& tooltip) {
    const QString tip = PlainToolTip(tooltip);
    if (widget.toolTip() != tip) widget.setToolTip(tip);
}

void ShowName(QWidget& widget, const QString& accessible) {
    if (widget.accessibleName() != accessible) widget.setAccessibleName(accessible);
}

void Face::Draw() {
    const QString text = QString::fromStdString(control.text);
    if (Text() != text) SetText(text);
    ShowTip(widget, control.tooltip);
    ShowName(widget, QString::fromStdString(AccessibleName(control)));
    if (widget.isVisibleTo(widget.parentWidget()) != control.visible) widget.setVisible(control.visible);
    if (widget.isEnabled() != control.enabled) widget.setEnabled(control.enabled);
    DrawColors();
    DrawKind();
}

/// Without colours the widget goes back to the desktop's.
void Face::DrawColors() {
    const bool coloured = control.colors || control.tint;
    if (!coloured && !widget.testAttribute(Qt::WA_SetPalette)) return;
    const auto [background, foreground] = ColorRoles();
    QPalette palette = coloured ? widget.palette() : QPalette();
    if (control.colors) {
        palette.setColor(background, GroundOf(*control.colors));
        palette.setColor(foreground, ToQColor(control.colors->foreground));
    } else if (control.tint) {
        const QColor behind = palette.color(background);
        palette.setColor(foreground, ToQColor(Legible(*control.tint, ToColor(behind))));
    }
    if (coloured && palette == widget.palette()) return;
    widget.setPalette(palette);
    widget.setAutoFillBackground(control.colors.has_value());
}

void Face::KeepRoom() {
    const QString shown = Text();
    SetText(QString::fromStdString(control.widest));
    widget.setMinimumWidth(widget.sizeHint().width());
    SetText(shown);
}

}  // namespace horvanta

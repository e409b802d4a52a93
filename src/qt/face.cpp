#include "qt/face.h"

#include "qt/plain_text.h"

namespace horvanta {

QColor ToQColor(Color color) { return {color.red, color.green, color.blue}; }

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
    if (!control.colors && !widget.testAttribute(Qt::WA_SetPalette)) return;
    QPalette palette;
    if (control.colors) {
        const auto [background, foreground] = ColorRoles();
        palette = widget.palette();
        palette.setColor(background, ToQColor(control.colors->background));
        palette.setColor(foreground, ToQColor(control.colors->foreground));
        if (palette == widget.palette()) return;
    }
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

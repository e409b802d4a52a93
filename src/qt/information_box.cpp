#include "qt/information_box.h"

#include <QDialogButtonBox>
#include <QFontMetrics>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace horvanta {
namespace {

constexpr int lineLength = 76;  // characters that the eye can follow
constexpr int fewestLines = 8;

/// As wide as such a line, and as high as the text needs, as far as the screen has room.
QSize SizeFor(const QPlainTextEdit& view, const QString& text) {
    const QFontMetrics metrics = view.fontMetrics();
    const int margins = 2 * (view.frameWidth() + static_cast<int>(std::ceil(view.document()->documentMargin())));
    const int width = lineLength * metrics.averageCharWidth();
    const int lines = metrics.boundingRect(QRect(0, 0, width, 1), Qt::TextWordWrap, text).height();
    const QSize screen = view.screen()->availableSize();
    const int scrollBar = view.verticalScrollBar()->sizeHint().width();
    return {std::min(width + margins + scrollBar, screen.width() * 3 / 4),
            std::clamp(lines + metrics.lineSpacing() + margins, fewestLines * metrics.lineSpacing(),
                       screen.height() * 2 / 3)};
}

}  // namespace

/// The text has the focus, so that it can be scrolled and selected by keys; Enter and Esc close the window from there.
InformationBox::InformationBox(const QString& text, const QString& title, QWidget* parent) : QDialog(parent) {
    setWindowTitle(title);
    auto* view = new QPlainTextEdit(text, this);
    view->setObjectName(QStringLiteral("information"));
    view->setAccessibleName(title);
    view->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    view->setTabChangesFocus(true);
    view->setMinimumSize(SizeFor(*view, text));
    auto* buttons = new QDialogButtonBox(this);
    QPushButton* copy = buttons->addButton(QStringLiteral("&Copy"), QDialogButtonBox::AcceptRole);
    QPushButton* close = buttons->addButton(QStringLiteral("Close"), QDialogButtonBox::RejectRole);
    copy->setAutoDefault(false);
    close->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(view);
    layout->addWidget(buttons);
    view->setFocus();
}

}  // namespace horvanta

// A frame without a program: the yardstick for the program's start. Each argument makes a window in it, with as many
// labels, buttons and check boxes as it says: "40,8,4". It ends after its first paint.

#include "qt/first_paint.h"

#include <QApplication>
#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QPushButton>

namespace {

/// Puts widgets of a kind behind those that are in the grid already.
template <class Widget>
void Fill(QGridLayout& grid, int count) {
    constexpr int columns = 6;
    for (int i = 0; i < count; ++i) {
        const int place = grid.count();
        grid.addWidget(new Widget(QStringLiteral("Text")), place / columns, place % columns);
    }
}

void AddWindow(QMdiArea& area, const QString& counts) {
    const QStringList numbers = counts.split(u',');
    auto* content = new QWidget;
    auto* grid = new QGridLayout(content);
    Fill<QLabel>(*grid, numbers.value(0).toInt());
    Fill<QPushButton>(*grid, numbers.value(1).toInt());
    Fill<QCheckBox>(*grid, numbers.value(2).toInt());
    area.addSubWindow(content);
}

}  // namespace

int main(int argc, char* argv[]) {
    const QApplication application(argc, argv);
    QMainWindow frame;
    auto* area = new QMdiArea;
    frame.setCentralWidget(area);
    for (const char* menu : {"File", "Options", "Window"}) frame.menuBar()->addMenu(QString::fromLatin1(menu));
    for (const QString& counts : QApplication::arguments().mid(1)) AddWindow(*area, counts);
    frame.showMaximized();
    new horvanta::FirstPaint(frame, [] { QApplication::exit(); });
    return QApplication::exec();
}

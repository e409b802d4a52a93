#pragma once

#include <QEvent>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <utility>

namespace horvanta {

/// Calls back once after the first paint of a window, for measuring starts. It belongs to the window.
class FirstPaint final : public QObject {
  public:
    FirstPaint(QWidget& window, std::function<void()> painted) : QObject(&window), painted_(std::move(painted)) {
        window.installEventFilter(this);
        window.update();
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            watched->removeEventFilter(this);
            QTimer::singleShot(0, this, painted_);
        }
        return false;
    }

  private:
    std::function<void()> painted_;
};

}  // namespace horvanta

#pragma once

#include "core/controls.h"

#include <QWidget>

namespace horvanta {

class Acts;

/// The light of a day as a strip of colours, with a tick at noon and a line at the time that is shown. Pointing at it
/// tells the Sun's altitude there.
class DayStripWidget final : public QWidget {
    Q_OBJECT
  public:
    explicit DayStripWidget(QWidget* parent = nullptr);

    void Draw(const DayStrip& strip);
    void KeepRoom(const QString&) {}
    void Connect(DayStrip& strip, Acts&) { strip_ = &strip; }

    QSize sizeHint() const override;

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    const DayStrip* strip_ = nullptr;
    DayStrip::Day day_;
    double time_ = 0;
};

}  // namespace horvanta

#pragma once

#include "core/controls.h"

#include <QWidget>

namespace horvanta {

class Acts;

/// The Moon on a night sky, lit and turned as it is seen, paler while it is below the horizon.
class MoonPictureWidget final : public QWidget {
    Q_OBJECT
  public:
    explicit MoonPictureWidget(QWidget* parent = nullptr);

    void Draw(const MoonPicture& picture);
    void KeepRoom(const QString&) {}
    void Connect(MoonPicture&, Acts&) {}

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    MoonPicture::Look look_;
};

}  // namespace horvanta

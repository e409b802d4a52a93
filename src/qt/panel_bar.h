#pragma once

#include "core/controls.h"

#include <QWidget>

#include <cstddef>
#include <vector>

class QLabel;

namespace horvanta {

/// A row of framed panels, all equally wide whatever they show, so that two bars of as many panels line up.
class PanelBar final : public QWidget {
    Q_OBJECT
  public:
    explicit PanelBar(QWidget* parent = nullptr);

    /// Shows the panels of a bar and leaves those that have not changed untouched.
    void Draw(const StatusBar& bar);

    /// Keeps room in each panel for a text.
    void KeepRoom(const QString& widest);

  Q_SIGNALS:
    void panelClicked(std::size_t index);

  protected:
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    void MakePanels(std::size_t count);

    std::vector<QLabel*> panels_;
};

}  // namespace horvanta

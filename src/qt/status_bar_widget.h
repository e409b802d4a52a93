#pragma once

#include "core/controls.h"
#include "qt/labels_widget.h"

namespace horvanta {

class Acts;

/// A row of framed panels, all equally wide whatever they show, so that two bars of as many panels line up.
class StatusBarWidget final : public LabelsWidget {
    Q_OBJECT
  public:
    explicit StatusBarWidget(QWidget* parent = nullptr);

    void Draw(const StatusBar& bar);

    /// Keeps room in each panel for a text.
    void KeepRoom(const QString& widest);

    void Connect(StatusBar& bar, Acts& acts);

  private:
    void AddPanel();
};

}  // namespace horvanta

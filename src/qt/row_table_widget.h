#pragma once

#include "core/controls.h"

#include <QTableWidget>

#include <functional>
#include <vector>

class QKeyEvent;
class QMouseEvent;

namespace horvanta {

class Acts;

/// Rows under headings, each in colours of its own. The last column takes the room there is and breaks its lines.
class RowTableWidget final : public QTableWidget {
    Q_OBJECT
  public:
    explicit RowTableWidget(QWidget* parent = nullptr);

    void Draw(const RowTable& table);
    void KeepRoom(const QString&) {}
    void Connect(RowTable& table, Acts& acts);

    /// Whether a key moves among the rows, or acts on one.
    static bool Keeps(const QKeyEvent& event);

    QSize minimumSizeHint() const override;

  protected:
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void FitColumns();
    void ShowCurrentRow();
    void DrawRow(int row, const RowTable::Row& shown);
    void SpeakRows();

    std::vector<RowTable::Row> rows_;  ///< As they stand in the widget.
    std::function<void(int row)> act_;
    std::function<void()> actBeside_;
};

}  // namespace horvanta

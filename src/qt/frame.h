#pragma once

#include "core/shell.h"
#include "qt/binder.h"
#include "qt/window_layout.h"

#include <QMainWindow>

#include <functional>
#include <memory>
#include <utility>
#include <vector>

class QAction;
class QMdiArea;
class QMdiSubWindow;
class QMenu;

namespace horvanta {

class ElidingLabel;
class FormDialog;

/// The main window: the menu bar and, within the frame, a window for each form.
class Frame final : public QMainWindow, public Acts {
    Q_OBJECT
  public:
    explicit Frame(HorvantaMDI& shell);
    ~Frame() override;
    Frame(const Frame&) = delete;
    Frame& operator=(const Frame&) = delete;

    /// Makes the window of a form around its widgets, hidden, and tells the form its size.
    void Load(Form& form, std::unique_ptr<QWidget> content);

    /// Makes the window of a modal form, hidden.
    void LoadDialog(Form& form);

    /// Draws what has changed, and shows the frame if it was not.
    void Draw();

    /// Draws, then handles what has come in. Of the user only those controls hear that ask for it; what he does
    /// elsewhere is lost.
    void LetEventsRun();

    /// A line in the status bar until the user acts again.
    void ShowStatus(const QString& line);

    /// Places all open windows anew.
    void Arrange();

    /// Where on the screen the menu that was asked for is to open.
    const QPoint& MenuPlace() const { return menuPlace_; }

    /// Brings the frame before all other windows.
    void ComeForward();

    bool eventFilter(QObject* watched, QEvent* event) override;

  protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    struct Child {
        Form* form;
        QMdiSubWindow* window;
        std::unique_ptr<Binder> binder;
        std::vector<QWidget*> mains;  ///< The widgets that show the main date.
        int wanted = 0;               ///< The height that its controls asked for when it was drawn last, in pixels.
        bool stands = false;          ///< It has been placed since it was shown.
        QSize placed{};               ///< How large it was then.

        bool SeeksPlace() const;
    };

    void Run(const std::function<void()>& act, ActKind kind = {}) override;
    void OpenMenu(const std::function<void()>& act, const QPoint& where) override;
    bool isPaintPending() const override { return paintPending_; }
    bool isDrawing() const override { return drawing_; }
    bool isBusy() const override { return busy_; }

    void AddItem(QMenu& menu, MenuItem& item);
    void AwaitPaint();
    void DrawMenus();
    void DrawSize(Child& child);
    void DrawChosenSize(Child& child);
    void ReportFront();
    bool isCovered(const QMdiSubWindow* window) const;
    std::vector<Child*> OpenChildren();
    Pane PaneOf(const Child& child) const;
    std::vector<QPoint> PlacesOf(const QSize& room, const std::vector<Child*>& open, const std::vector<Pane>& panes);
    void FreeComers(const std::vector<Child*>& open);
    void PlaceAll();
    void Stack(const std::vector<Child*>& fromTop);
    void GrantFocus(Child& child);
    void ShowFirst();
    void NotePlace();
    Child* ChildOf(const QObject* window);

    HorvantaMDI& shell_;
    QMdiArea* area_;
    std::vector<Child> children_;
    std::vector<FormDialog*> dialogs_;
    std::vector<std::pair<MenuItem*, QAction*>> actions_;
    ElidingLabel* status_;
    bool toldStatus_ = false;   ///< During the present act.
    bool toldAtPress_ = false;  ///< During the act before, while a button of the mouse was down.
    QPoint menuPlace_;
    LayoutCost cost_;
    QSize room_;  ///< In which the windows were placed last, and as what.
    std::vector<Pane> panes_;
    int depth_ = 0;
    bool drawing_ = false;
    bool busy_ = false;
    bool paintPending_ = false;
};

}  // namespace horvanta

#pragma once

#include "core/shell.h"
#include "qt/binder.h"

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

    /// Draws what has changed, and shows the frame if it was not.
    void Draw();

    /// Draws, then handles what has come in. Of the user only those controls hear that ask for it; what he does
    /// elsewhere is lost.
    void LetEventsRun();

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
        int wanted = 0;  ///< The height that its controls asked for when it was drawn last, in pixels.
    };

    void Run(const std::function<void()>& act, bool whileBusy = false) override;
    bool isPaintPending() const override { return paintPending_; }
    bool isDrawing() const override { return drawing_; }
    bool isBusy() const override { return busy_; }

    void AddItem(QMenu& menu, MenuItem& item);
    void AwaitPaint();
    void DrawMenus();
    void DrawChild(Child& child);
    void DrawSize(Child& child);
    void DrawChosenSize(Child& child);
    void DrawPlace(Child& child);
    int FreeBottom(const Child& child, QRect place) const;
    QPoint FreePlace(const Child& child, QRect wished) const;
    void PlaceAll();
    void GrantFocus(Child& child);
    void ShowFirst();
    void NotePlace();
    Child* ChildOf(const QObject* window);

    HorvantaMDI& shell_;
    QMdiArea* area_;
    std::vector<Child> children_;
    std::vector<std::pair<MenuItem*, QAction*>> actions_;
    int depth_ = 0;
    bool drawing_ = false;
    bool busy_ = false;
    bool paintPending_ = false;
};

}  // namespace horvanta

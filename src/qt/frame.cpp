#include "qt/frame.h"

#include "core/moment.h"
#include "qt/keys.h"
#include "qt/plain_text.h"
#include "qt/user_gate.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLayout>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>

#include <algorithm>
#include <cmath>
#include <set>

namespace horvanta {
namespace {

constexpr QEvent::Type paintedEvent = QEvent::User;

double Twips(int pixels) { return pixels * TwipsPerPixel; }

/// Twips as pixels, held between two ends, the lower of which prevails.
int Pixels(double twips, double least, double greatest) {
    return static_cast<int>(std::lround(std::max(least, std::min(twips / TwipsPerPixel, greatest))));
}

void NoteSize(Form& form, const QSize& size) {
    form.position.width = Twips(size.width());
    form.position.height = Twips(size.height());
}

}  // namespace

Frame::Frame(HorvantaMDI& shell) : shell_(shell), area_(new QMdiArea(this)) {
    setObjectName(QString::fromStdString(shell_.name));
    setWindowTitle(PlainTitle(shell_.text));
    area_->viewport()->installEventFilter(this);
    setCentralWidget(area_);
    connect(area_, &QMdiArea::subWindowActivated, this, [this](QMdiSubWindow* window) {
        if (const Child* child = ChildOf(window)) shell_.activeForm = child->form;
    });
    for (MenuItem* item : shell_.menuBar.items) {
        QMenu* menu = menuBar()->addMenu(QString::fromStdString(item->caption));
        actions_.emplace_back(item, menu->menuAction());
        for (MenuItem* below : item->items) AddItem(*menu, *below);
    }
    DrawMenus();
}

/// The area reports the windows that go down with it, when there is no frame left to hear of them.
Frame::~Frame() { area_->disconnect(this); }

/// A menu shows a line only between items that are shown.
void Frame::AddItem(QMenu& menu, MenuItem& item) {
    if (item.isSeparator()) {
        menu.addSeparator();
        return;
    }
    const QString caption = QString::fromStdString(item.caption);
    if (item.items.empty()) {
        QAction* action = menu.addAction(caption);
        action->setShortcut(QString::fromStdString(item.shortcut));
        connect(action, &QAction::triggered, this, [this, &item] { Run(item.Click); });
        actions_.emplace_back(&item, action);
        return;
    }
    QMenu* submenu = menu.addMenu(caption);
    actions_.emplace_back(&item, submenu->menuAction());
    for (MenuItem* below : item.items) AddItem(*submenu, *below);
}

void Frame::Load(Form& form, std::unique_ptr<QWidget> content) {
    auto* window = new QMdiSubWindow(area_);
    window->setObjectName(QString::fromStdString(form.name));
    window->setWidget(content.release());
    const Qt::WindowFlags closable = form.Close ? Qt::WindowCloseButtonHint : Qt::WindowFlags();
    area_->addSubWindow(window, Qt::SubWindow | Qt::CustomizeWindowHint | Qt::WindowTitleHint | closable);
    window->hide();
    children_.push_back({&form, window, std::make_unique<Binder>(form, *window->widget(), *this)});
    window->widget()->layout()->activate();
    window->resize(window->sizeHint());
    window->installEventFilter(this);
    NoteSize(form, window->size());
}

void Frame::Run(const std::function<void()>& act, bool whileBusy) {
    if (!act || (busy_ && !whileBusy)) return;
    ++depth_;
    act();
    if (--depth_ == 0) Draw();
}

void Frame::Draw() {
    drawing_ = true;
    if (!isVisible() && !Quitting) ShowFirst();
    DrawMenus();
    for (Child& child : children_) DrawChild(child);
    for (Child& child : children_) GrantFocus(child);
    drawing_ = false;
    AwaitPaint();
}

void Frame::LetEventsRun() {
    Draw();
    const UserGate gate([this](const QWidget* widget) {
        return std::ranges::any_of(children_, [&](const Child& c) { return c.binder->isHeardWhileBusy(widget); });
    });
    const bool before = std::exchange(busy_, true);
    QCoreApplication::processEvents();
    busy_ = before;
}

/// Paints are posted with low priority; what is posted lower still arrives when they are done.
void Frame::AwaitPaint() {
    if (!std::exchange(paintPending_, true)) {
        QCoreApplication::postEvent(this, new QEvent(paintedEvent), Qt::LowEventPriority - 1);
    }
}

void Frame::DrawMenus() {
    for (const auto& [item, action] : actions_) {
        action->setText(QString::fromStdString(item->caption));
        action->setVisible(item->isShown());
        action->setEnabled(item->enabled);
        action->setCheckable(item->isTickable());
        action->setChecked(item->isTicked());
    }
}

/// A window that is not shown is not drawn; one that comes is drawn first.
void Frame::DrawChild(Child& child) {
    if (child.form->visible) {
        child.window->setWindowTitle(PlainTitle(child.form->text));
        child.binder->Draw();
        DrawPlace(child);
    }
    if (child.window->isVisibleTo(child.window->parentWidget()) != child.form->visible) {
        child.window->setVisible(child.form->visible);
    }
}

/// Lets a window grow to hold what it shows now. Where controls have come or gone it takes just the height they ask
/// for.
void Frame::DrawSize(Child& child) {
    QMdiSubWindow& window = *child.window;
    window.widget()->layout()->activate();
    const QSize least = window.minimumSizeHint();
    const int wanted = window.sizeHint().height();
    const bool changed = std::exchange(child.wanted, wanted) != wanted;
    const QSize size(std::max(window.width(), least.width()),
                     changed ? wanted : std::max(window.height(), least.height()));
    if (size != window.size()) window.resize(size);
}

/// The size that the user has chosen, as far as it fits into the frame.
void Frame::DrawChosenSize(Child& child) {
    const Position& chosen = child.form->position;
    const QSize least = child.window->minimumSizeHint();
    const QSize room = area_->viewport()->size();
    child.window->resize(Pixels(chosen.width, least.width(), room.width()),
                         Pixels(chosen.height, least.height(), room.height()));
}

/// Puts a window where its form says, but so that its title can be reached: settings may come from a larger screen.
void Frame::DrawPlace(Child& child) {
    constexpr int reach = 60;  // pixels
    QMdiSubWindow& window = *child.window;
    const bool growsDown = child.form->resizable && child.form->position.height == 0;
    child.form->resizable ? DrawChosenSize(child) : DrawSize(child);

    const Position& place = child.form->position;
    const QSize room = area_->viewport()->size();
    QRect wished = window.geometry();
    wished.moveTo(Pixels(place.left, reach - window.width(), room.width() - reach),
                  Pixels(place.top, 0, room.height() - reach));
    if (!child.form->positioned) wished.moveTo(FreePlace(child, wished));
    if (growsDown) wished.setBottom(FreeBottom(child, wished));
    if (window.geometry() != wished) window.setGeometry(wished);
}

/// How far down a window may reach before it meets another one or leaves the frame.
int Frame::FreeBottom(const Child& child, QRect place) const {
    int bottom = area_->viewport()->height() - 1;
    for (const Child& other : children_) {
        const QRect taken = other.window->geometry();
        const bool isBelow =
            taken.top() > place.bottom() && taken.left() <= place.right() && taken.right() >= place.left();
        if (&other != &child && other.form->visible && isBelow) bottom = std::min(bottom, taken.top() - 1);
    }
    return std::max(bottom, place.bottom());
}

/// Where a window that no one has placed may stand: as it wishes, or at the highest place, to the left, beside or below
/// those drawn before it at which it fits into the frame and covers none of them. Where there is none it stays within
/// the frame.
QPoint Frame::FreePlace(const Child& child, QRect wished) const {
    constexpr int gap = 1;  // pixels
    std::vector<QRect> taken;
    std::set<int> tops{0, wished.top()};
    std::set<int> lefts{0};
    for (const Child& other : children_) {
        if (&other == &child) break;
        if (!other.form->visible) continue;
        taken.push_back(other.window->geometry());
        tops.insert(taken.back().bottom() + 1 + gap);
        lefts.insert(taken.back().right() + 1 + gap);
    }
    const auto fits = [&](const QRect& place) {
        return area_->viewport()->rect().contains(place) &&
               std::none_of(taken.begin(), taken.end(), [&](const QRect& t) { return t.intersects(place); });
    };
    if (fits(wished)) return wished.topLeft();
    const QPoint within(std::max(0, std::min(wished.left(), area_->viewport()->width() - wished.width())),
                        std::max(0, std::min(wished.top(), area_->viewport()->height() - wished.height())));
    for (const int top : tops) {
        for (const int left : lefts) {
            wished.moveTo(left, top);
            if (fits(wished)) return wished.topLeft();
        }
    }
    return within;
}

void Frame::PlaceAll() {
    const bool before = std::exchange(drawing_, true);
    for (Child& child : children_) {
        if (child.form->visible) DrawPlace(child);
    }
    drawing_ = before;
}

void Frame::GrantFocus(Child& child) {
    const Control* wished = std::exchange(child.form->focusWish, nullptr);
    if (!wished || !child.form->visible) return;
    area_->setActiveSubWindow(child.window);
    if (QWidget* widget = child.binder->WidgetOf(*wished)) widget->setFocus(Qt::OtherFocusReason);
}

/// Without a window manager nothing maximises the frame, so it has the size of the screen to begin with.
void Frame::ShowFirst() {
    const bool placed = shell_.state == FrameNormal && shell_.position.width > 0 && shell_.position.height > 0;
    if (!placed) {
        setGeometry(screen()->availableGeometry());
        showMaximized();
        return;
    }
    const QRect room = screen()->availableGeometry();
    resize(Pixels(shell_.position.width, minimumSizeHint().width(), room.width()),
           Pixels(shell_.position.height, minimumSizeHint().height(), room.height()));
    move(Pixels(shell_.position.left, room.left(), room.right() - width()),
         Pixels(shell_.position.top, room.top(), room.bottom() - height()));
    show();
}

void Frame::ComeForward() {
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

Frame::Child* Frame::ChildOf(const QObject* window) {
    const auto found = std::ranges::find(children_, window, &Child::window);
    return found == children_.end() ? nullptr : &*found;
}

bool Frame::eventFilter(QObject* watched, QEvent* event) {
    if (watched == area_->viewport() && event->type() == QEvent::Resize) PlaceAll();
    Child* child = ChildOf(watched);
    if (!child) return QMainWindow::eventFilter(watched, event);
    switch (event->type()) {
        case QEvent::Close:
            event->ignore();
            Run(child->form->Close);
            return true;
        case QEvent::Move:
            if (!drawing_) {
                child->form->positioned = true;
                child->form->position.left = Twips(child->window->x());
                child->form->position.top = Twips(child->window->y());
            }
            return false;
        case QEvent::Resize:
            if (!child->form->resizable || !drawing_) NoteSize(*child->form, child->window->size());
            return false;
        default: return false;
    }
}

bool Frame::event(QEvent* event) {
    const bool used = QMainWindow::event(event);
    switch (event->type()) {
        case paintedEvent: paintPending_ = false; break;
        case QEvent::WindowStateChange:
        case QEvent::Move:
        case QEvent::Resize: NotePlace(); break;
        default: break;
    }
    return used;
}

void Frame::NotePlace() {
    if (!isVisible()) return;
    shell_.state = isMinimized() ? FrameMinimized : isMaximized() ? FrameMaximized : FrameNormal;
    if (shell_.state != FrameNormal) return;
    shell_.position = {Twips(x()), Twips(y()), Twips(width()), Twips(height())};
}

void Frame::closeEvent(QCloseEvent* event) {
    const bool busy = BusyCount > 0 || busy_;
    event->setAccepted(!busy);
    if (!busy && !Quitting) Run(shell_.Close);
}

/// Keys that reach the frame because no window has the focus are the time window's.
void Frame::keyPressEvent(QKeyEvent* event) {
    const KeyPress key = KeyPressOf(*event);
    if (key.code != 0) Run([&] { shell_.Form_KeyDown(key.code, key.shift); });
}

}  // namespace horvanta

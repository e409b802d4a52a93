#include "qt/frame.h"

#include "core/moment.h"
#include "qt/eliding_label.h"
#include "qt/form_dialog.h"
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
#include <QStatusBar>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace horvanta {
namespace {

constexpr QEvent::Type paintedEvent = QEvent::User;

double Twips(int pixels) { return pixels * TwipsPerPixel; }

int Rounded(double twips) { return static_cast<int>(std::lround(twips / TwipsPerPixel)); }

/// Twips as pixels, held between two ends, the lower of which prevails.
int Pixels(double twips, double least, double greatest) {
    return static_cast<int>(std::lround(std::max(least, std::min(twips / TwipsPerPixel, greatest))));
}

/// A place of a form, to which pixels add nothing as long as they are its own.
double PlaceAt(double twips, int pixels) { return Rounded(twips) == pixels ? twips : Twips(pixels); }

/// Where a window stands, whoever put it there.
void NoteStanding(Form& form, const QWidget& window) {
    form.standing = {PlaceAt(form.position.left, window.x()), PlaceAt(form.position.top, window.y()),
                     Twips(window.width()), Twips(window.height())};
}

void NoteSize(Form& form, const QSize& size) {
    form.position.width = Twips(size.width());
    form.position.height = Twips(size.height());
}

}  // namespace

Frame::Frame(HorvantaMDI& shell) : shell_(shell), area_(new QMdiArea(this)), status_(new ElidingLabel(this)) {
    setObjectName(QString::fromStdString(shell_.name));
    setWindowTitle(PlainTitle(shell_.text));
    area_->viewport()->installEventFilter(this);
    setCentralWidget(area_);
    status_->setObjectName(QStringLiteral("status"));
    statusBar()->addWidget(status_, 1);
    ShowStatus({});
    ShowName(*status_, QStringLiteral("Status"));
    connect(area_, &QMdiArea::subWindowActivated, this, [this](QMdiSubWindow* window) {
        if (const Child* child = ChildOf(window)) shell_.activeForm = child->form;
        area_->viewport()->update();  // or else frames are drawn over the windows that lie above them
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
    children_.push_back({&form, window, std::make_unique<Binder>(form, *window->widget(), *this), {}});
    for (QWidget* widget : window->widget()->findChildren<QWidget*>()) {
        if (widget->property("main").toBool()) children_.back().mains.push_back(widget);
    }
    window->widget()->layout()->activate();
    window->resize(window->sizeHint());
    window->installEventFilter(this);
    NoteSize(form, window->size());
}

void Frame::LoadDialog(Form& form) { dialogs_.push_back(new FormDialog(form, *this, this)); }

/// The line in the status bar is of the act before, unless this one tells something. The press of a click, which leaves
/// a field, and its release are one: what the field refused can be read.
void Frame::Run(const std::function<void()>& act, ActKind kind) {
    if (!act || (busy_ && !kind.whileBusy)) return;
    if (++depth_ == 1) {
        toldStatus_ = false;
        ReportFront();
        if (!kind.editing) CommitEdit();
    }
    act();
    if (--depth_ > 0) return;
    const bool pressed = QGuiApplication::mouseButtons() != Qt::NoButton;
    const bool ofThisClick = std::exchange(toldAtPress_, toldStatus_ && pressed);
    if (!toldStatus_ && !ofThisClick) ShowStatus({});
    Draw();
}

void Frame::OpenMenu(const std::function<void()>& act, const QPoint& where) {
    menuPlace_ = where;
    Run(act);
}

void Frame::Draw() {
    drawing_ = true;
    if (!isVisible() && !Quitting) ShowFirst();
    DrawMenus();
    for (Child* child : OpenChildren()) {
        child->window->setWindowTitle(PlainTitle(child->form->text));
        child->binder->Draw();
        child->form->resizable ? DrawChosenSize(*child) : DrawSize(*child);
    }
    for (Child& child : children_) {
        const bool isShown = child.window->isVisibleTo(child.window->parentWidget());
        if (isShown != child.form->visible) child.window->setVisible(child.form->visible);
        child.stands = child.stands && child.form->visible;
    }
    for (Child& child : children_) GrantFocus(child);
    PlaceAll();
    for (FormDialog* dialog : dialogs_) dialog->Draw();
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
    if (window.layout()) window.layout()->activate();
    window.widget()->layout()->activate();
}

/// The size that the user has chosen, as far as it fits into the frame.
void Frame::DrawChosenSize(Child& child) {
    const Position& chosen = child.form->position;
    const QSize least = child.window->minimumSizeHint();
    const QSize room = area_->viewport()->size();
    child.window->resize(Pixels(chosen.width, least.width(), room.width()),
                         Pixels(chosen.height, least.height(), room.height()));
}

std::vector<Frame::Child*> Frame::OpenChildren() {
    std::vector<Child*> open;
    for (Child& child : children_) {
        if (child.form->visible) open.push_back(&child);
    }
    return open;
}

/// A window stands where its form says, but so that it can be taken hold of: settings may come from a larger screen.
/// One that would stand elsewhere, or that no one has placed, may give way to others.
Pane Frame::PaneOf(const Child& child) const {
    constexpr int reach = 60;    // pixels of it that have to be in the frame
    constexpr int handle = 100;  // pixels of its title bar that others are to leave free
    const QMdiSubWindow& window = *child.window;
    const QWidget& content = *window.widget();
    const QRect title(0, 0, window.width(), content.y());
    const QSize room = area_->viewport()->size();
    const Position& place = child.form->position;
    const QPoint within(Pixels(place.left, reach - window.width(), room.width() - reach),
                        Pixels(place.top, 0, room.height() - reach));
    const bool stands = within == QPoint(Rounded(place.left), Rounded(place.top));
    Pane pane{QRect(within, window.size()),
              {title & QRect(0, 0, handle, title.height()), title},
              child.form->positioned && stands};
    for (const QWidget* main : child.mains) {
        if (!main->isVisibleTo(&content)) continue;
        pane.needed.emplace_back(main->mapTo(&content, QPoint()) + content.pos(), main->size());
    }
    return pane;
}

/// It is new, or has grown where it stands.
bool Frame::Child::SeeksPlace() const { return !stands || window->size().expandedTo(placed) != placed; }

/// Windows stay where they stand as long as that hides no more of what has to be seen than when they were placed. So
/// nothing moves back and forth with the length of months, nor when a window goes and comes back. One that comes for
/// the first time, or grows over others, finds a place among them.
std::vector<QPoint> Frame::PlacesOf(const QSize& room, const std::vector<Child*>& open,
                                    const std::vector<Pane>& panes) {
    std::vector<QPoint> places;
    std::vector<bool> seeks;
    bool isKnown = room == room_;  // the places were found together
    for (std::size_t i = 0; i < open.size(); ++i) {
        const bool hasStood = !panes[i].fixed && open[i]->form->standing;
        places.push_back(hasStood ? open[i]->window->pos() : panes[i].wish.topLeft());
        seeks.push_back(open[i]->SeeksPlace());
        isKnown &= open[i]->stands || hasStood;
    }
    if (isKnown && CostOf(room, panes, places).hidesNoMoreNeededThan(cost_)) return places;
    const bool anySeeks = std::ranges::count(seeks, true) > 0;
    const bool anyNew = !std::ranges::all_of(open, &Child::stands);
    places = room == room_ && anySeeks ? FitIn(room, panes, places, seeks, anyNew) : LayOut(room, panes);
    cost_ = CostOf(room, panes, places);
    return places;
}

/// One that would come to others beyond the frame finds another place: it may never have stood there.
void Frame::FreeComers(const std::vector<Child*>& open) {
    if (std::ranges::none_of(open, &Child::stands)) return;
    for (Child* child : open) {
        const Position& place = child->form->position;
        const QRect rect(QPoint(Rounded(place.left), Rounded(place.top)), child->window->size());
        if (!child->stands && !area_->viewport()->rect().contains(rect)) child->form->positioned = false;
    }
}

void Frame::PlaceAll() {
    const std::vector<Child*> open = OpenChildren();
    FreeComers(open);
    std::vector<Pane> panes;
    for (const Child* child : open) panes.push_back(PaneOf(*child));
    const QSize room = area_->viewport()->size();
    if (room == room_ && panes == panes_) return;
    const bool before = std::exchange(drawing_, true);
    const std::vector<QPoint> places = PlacesOf(room, open, panes);
    bool isLaidOut = room != room_;
    std::vector<Child*> fromTop = open;
    std::ranges::stable_partition(fromTop, &Child::SeeksPlace);
    for (std::size_t i = 0; i < open.size(); ++i) {
        const bool moves = open[i]->window->pos() != places[i];
        isLaidOut |= moves && open[i]->stands && !panes[i].fixed;
        if (moves) open[i]->window->move(places[i]);
        open[i]->stands = true;
        open[i]->placed = open[i]->window->size();
        NoteStanding(*open[i]->form, *open[i]->window);
    }
    if (isLaidOut) Stack(fromTop);
    drawing_ = before;
    room_ = room;
    panes_ = std::move(panes);
}

void Frame::Arrange() {
    std::vector<Child*> open = OpenChildren();
    std::ranges::stable_partition(open, [&](const Child* c) { return c->window == area_->currentSubWindow(); });
    std::vector<Pane> panes;
    for (const Child* child : open) {
        panes.push_back(PaneOf(*child));
        panes.back().wish.moveTo(0, 0);
        panes.back().fixed = false;
    }
    const std::vector<QPoint> places = LayOut(area_->viewport()->size(), panes);
    for (std::size_t i = 0; i < open.size(); ++i) {
        Form& form = *open[i]->form;
        form.positioned = true;
        form.position.left = Twips(places[i].x());
        form.position.top = Twips(places[i].y());
        open[i]->window->move(places[i]);
    }
    Stack(open);
}

/// Lays windows above one another as their places were chosen for, the first above all. What is active then stays in
/// front.
void Frame::Stack(const std::vector<Child*>& fromTop) {
    std::vector<std::size_t> order(fromTop.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::sort(
        order, [&](auto a, auto b) { return LiesUnder(a, fromTop[a]->window->pos(), b, fromTop[b]->window->pos()); });
    for (const std::size_t number : order) fromTop[number]->window->raise();
    if (QMdiSubWindow* active = area_->currentSubWindow()) active->raise();
}

void Frame::ShowStatus(const QString& line) {
    toldStatus_ = true;
    if (status_->text() == line) return;
    status_->setText(line);
    ShowName(*status_, line.isEmpty() ? QStringLiteral("Status") : line);
}

/// The windows lie above one another in the order of the list, from the lowest.
bool Frame::isCovered(const QMdiSubWindow* window) const {
    const QList<QMdiSubWindow*> stack = area_->subWindowList(QMdiArea::StackingOrder);
    return std::any_of(stack.begin() + stack.indexOf(window) + 1, stack.end(), [&](const QMdiSubWindow* other) {
        return other->isVisible() && other->geometry().intersects(window->geometry());
    });
}

void Frame::ReportFront() {
    for (const Child& child : children_) {
        child.form->inFront = child.window == area_->currentSubWindow() && !isCovered(child.window);
    }
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
    if (watched == area_->viewport() && event->type() == QEvent::Resize && !drawing_) PlaceAll();
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
                NoteStanding(*child->form, *child->window);
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

/// Keys that reach the frame because no window has the focus are the time window's. What a window had and left stays
/// without effect.
void Frame::keyPressEvent(QKeyEvent* event) {
    const auto hasFocus = [](const Child& child) { return child.window->isAncestorOf(QApplication::focusWidget()); };
    if (std::ranges::any_of(children_, hasFocus)) return;
    const KeyPress key = KeyPressOf(*event);
    if (key.code != 0) Run([&] { shell_.Form_KeyDown(key.code, key.shift); });
}

}  // namespace horvanta

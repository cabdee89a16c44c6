#include "platform/qt/FormWindow.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QCursor>
#include <QDrag>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QMouseEvent>
#include <QScreen>
#include <QScrollArea>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/Ui.h"
#include "platform/qt/Ansi.h"
#include "platform/qt/ControlView.h"
#include "platform/qt/Keys.h"
#include "platform/qt/MenuView.h"
#include "platform/qt/QtBackend.h"
#include "platform/qt/TabView.h"

namespace platform::qt {
namespace {

// Sizes the original platform gives its window frames, in twips.
constexpr int kBorderWidth = 120;    // left and right window border together
constexpr int kCaptionHeight = 405;  // title bar and borders
constexpr int kMenuHeight = 285;

const QString kDragFormat = QStringLiteral("application/x-scheduler-control");

}  // namespace

// ---- Building

FormWindow::FormWindow(Form& form, QtBackend& backend) : form_(&form), backend_(backend) {
    setAttribute(Qt::WA_DeleteOnClose, false);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    menuBar_ = new QMenuBar(this);
    layout->setMenuBar(menuBar_);
    scroll_ = new QScrollArea(this);
    scroll_->setFrameShape(QFrame::NoFrame);
    scroll_->setWidgetResizable(false);
    // The scroll area is only a frame for the drawing surface: Tab never stops on it.
    scroll_->setFocusPolicy(Qt::NoFocus);
    canvas_ = new QWidget;
    canvas_->setObjectName(QString::fromStdString(form.Name()));
    scroll_->setWidget(canvas_);
    layout->addWidget(scroll_);
    Build();
    form_->SetObserver([this](Form&) {
        formDirty_ = true;
        if (!flushPosted_) {
            flushPosted_ = true;
            QTimer::singleShot(0, this, [this] { Flush(); });
        }
    });
    FlushAll();
}

FormWindow::~FormWindow() {
    Detach();
}

void FormWindow::Build() {
    views_.reserve(form_->Controls().size());
    for (Control* c : form_->Controls()) {
        byControl_[c] = views_.size();
        views_.push_back(MakeControlView(*c, *this));
        c->SetObserver([this](Control& changed) { MarkDirty(changed); });
    }
    for (auto& view : views_)
        if (auto* menu = dynamic_cast<MenuView*>(view.get())) menu->Attach(menuBar_);
}

void FormWindow::Watch(QObject* object, Control& control) {
    watched_[object] = &control;
    object->installEventFilter(this);
    if (auto* w = qobject_cast<QWidget*>(object)) w->setAcceptDrops(true);
}

QWidget* FormWindow::ParentFor(const Control& control) const {
    if (control.Container().empty()) return canvas_;
    Control* container = form_->Find(control.Container());
    if (!container) {
        for (Control* c : form_->Controls())
            if (c->Name() == control.Container()) {
                container = c;
                break;
            }
    }
    if (!container || container == &control) return canvas_;
    ControlView* view = ViewOf(*container);
    if (!view || !view->IsContainer()) return canvas_;
    return view->PlaceFor(control);
}

ControlView* FormWindow::ViewOf(const Control& control) const {
    auto it = byControl_.find(&control);
    return it == byControl_.end() ? nullptr : views_[it->second].get();
}

QWidget* FormWindow::WidgetOf(const Control& control) const {
    ControlView* view = ViewOf(control);
    return view ? view->Widget() : nullptr;
}

QAction* FormWindow::ActionOf(const Control& menu) const {
    ControlView* view = ViewOf(menu);
    return view ? view->Action() : nullptr;
}

// ---- Model to screen

void FormWindow::MarkDirty(Control& control) {
    dirty_.insert(&control);
    if (!flushPosted_) {
        flushPosted_ = true;
        QTimer::singleShot(0, this, [this] { Flush(); });
    }
}

void FormWindow::FlushAll() {
    formDirty_ = true;
    for (auto& view : views_) dirty_.insert(&view->Model());
    Flush();
}

void FormWindow::Flush() {
    flushPosted_ = false;
    if (detached_) return;
    ++syncing_;
    if (formDirty_) {
        formDirty_ = false;
        UpdateWindowGeometry();
    }
    // Containers first: a frame or tab page must exist before its controls move in.
    std::vector<size_t> order;
    order.reserve(dirty_.size());
    for (Control* c : dirty_) {
        auto it = byControl_.find(c);
        if (it != byControl_.end()) order.push_back(it->second);
    }
    dirty_.clear();
    std::sort(order.begin(), order.end(), [this](size_t a, size_t b) {
        const bool ca = views_[a]->IsContainer();
        const bool cb = views_[b]->IsContainer();
        return ca != cb ? ca : a < b;
    });
    for (size_t i : order) {
        ControlView& view = *views_[i];
        if (view.Widget() && view.Model().Container().empty()) formDirty_ = true;
        try {
            view.Sync();
        } catch (const std::exception&) {
            // A property the widget cannot show yet; the next change shows it.
        }
    }
    if (formDirty_) {
        formDirty_ = false;
        UpdateWindowGeometry();
    }
    if (focusOrderDirty_) {
        focusOrderDirty_ = false;
        OrderFocus();
    }
    --syncing_;
}

void FormWindow::OrderFocus() {
    std::unordered_map<QWidget*, std::vector<ControlView*>> inside;
    for (auto& view : views_)
        if (QWidget* w = view->Widget()) inside[w->parentWidget()].push_back(view.get());
    std::vector<QWidget*> order;
    std::function<void(QWidget*)> visit = [&](QWidget* place) {
        auto it = inside.find(place);
        if (it == inside.end()) return;
        for (ControlView* view : it->second) {
            if (QWidget* target = view->FocusTarget()) order.push_back(target);
            if (!view->IsContainer()) continue;
            // A frame holds its controls; a tab control holds them on its pages.
            visit(view->Widget());
            for (QWidget* page :
                 view->Widget()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
                visit(page);
        }
    };
    visit(canvas_);
    for (size_t i = 1; i < order.size(); ++i) QWidget::setTabOrder(order[i - 1], order[i]);
}

void FormWindow::UpdateWindowGeometry() {
    bool hasMenu = false;
    // A control that sticks out past the form's edge is still reached: the drawing
    // surface grows to hold it rather than cut it off.
    int right = 0, bottom = 0;
    for (auto& view : views_) {
        const Control& c = view->Model();
        if (c.Type() == ControlType::Menu && c.Container().empty() && c.Visible()) hasMenu = true;
        if (view->Widget() && c.Container().empty() && c.Visible()) {
            right = std::max(right, c.Left() + c.Width());
            bottom = std::max(bottom, c.Top() + c.Height());
        }
    }
    menuBar_->setVisible(hasMenu);
    const int clientWidth = std::max(0, form_->Width() - kBorderWidth);
    const int clientHeight =
        std::max(0, form_->Height() - kCaptionHeight - (hasMenu ? kMenuHeight : 0));
    const QSize twips(std::max(clientWidth, right), std::max(clientHeight, bottom));
    setWindowTitle(FromAnsi(form_->Caption()));
    canvas_->setFixedSize(scale_.X(twips.width()), scale_.Y(twips.height()));
    if (twips == formTwips_) return;
    formTwips_ = twips;
    FitContents();
}

void FormWindow::FitContents() {
    const QSize natural = NaturalSize();
    const int menu = natural.height() - NaturalCanvas().height();
    QSize wanted = natural;
    const QScreen* shownOn = isVisible() && screen() ? screen() : QApplication::primaryScreen();
    if (shownOn) {
        // Room for the window manager's frame and title bar too.
        const QSize room = shownOn->availableGeometry().size() - QSize(16, 48);
        const double shrink = std::min({1.0, double(room.width()) / natural.width(),
                                        double(room.height() - menu) / (natural.height() - menu)});
        wanted =
            QSize(int(natural.width() * shrink), int((natural.height() - menu) * shrink) + menu);
    }
    resize(wanted);
    ScaleToWindow();
}

QSize FormWindow::NaturalCanvas() const {
    const Scale usual;
    return QSize(usual.X(formTwips_.width()), usual.Y(formTwips_.height()));
}

QSize FormWindow::NaturalSize() const {
    // Before the window is first shown its menu bar is not yet visible to it; what counts is
    // whether the bar has been hidden.
    return NaturalCanvas() + QSize(0, menuBar_->isHidden() ? 0 : menuBar_->sizeHint().height());
}

void FormWindow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    ScaleToWindow();
}

void FormWindow::ScaleToWindow() {
    if (detached_ || formTwips_.isEmpty()) return;
    const int menu = menuBar_->isHidden() ? 0 : menuBar_->sizeHint().height();
    const QSize room(width(), height() - menu);
    const double pixelRatio = devicePixelRatioF();
    const double legible = kLegibleTextPixels / (kDefaultTextPixels * pixelRatio);
    auto fit = [legible](int pixels, int twips) {
        return std::clamp(pixels * 15.0 / twips, std::min(legible, kBaseScale), kLargestScale);
    };
    Scale wanted;
    wanted.x = fit(room.width(), formTwips_.width());
    wanted.y = fit(room.height(), formTwips_.height());
    if (wanted == scale_) return;
    scale_ = wanted;
    formDirty_ = true;
    for (auto& view : views_) dirty_.insert(&view->Model());
    if (!syncing_) {
        Flush();
    } else if (!flushPosted_) {
        flushPosted_ = true;
        QTimer::singleShot(0, this, [this] { Flush(); });
    }
}

void FormWindow::StopTimers() {
    for (auto& view : views_) view->Stop();
}

void FormWindow::Detach() {
    if (detached_) return;
    detached_ = true;
    StopTimers();
    for (auto& view : views_) {
        view->Model().SetObserver(nullptr);
        view->Detach();
    }
    form_->SetObserver(nullptr);
    dirty_.clear();
}

// ---- Screen to model

void FormWindow::Act(Control* control, const std::function<void()>& work,
                     const std::function<void()>& beforeShowing) {
    if (detached_ || syncing_ || ProgramHasEnded()) return;
    QPointer<FormWindow> self(this);
    Dispatch(work);
    if (!self) return;
    if (!detached_ && !ProgramHasEnded()) {
        if (beforeShowing) beforeShowing();
        if (control) MarkDirty(*control);
    }
    backend_.FlushAll();
}

Control* FormWindow::DefaultButton(bool cancel) const {
    for (auto& view : views_) {
        if (view->Model().Type() != ControlType::CommandButton) continue;
        auto* button = static_cast<CommandButton*>(&view->Model());
        if ((cancel ? button->IsCancel() : button->IsDefault()) &&
            view->Widget()->isVisibleTo(this) && view->Widget()->isEnabled())
            return button;
    }
    return nullptr;
}

bool FormWindow::HandleKey(Control& control, QKeyEvent* event) {
    const std::string name = control.Name();
    Control* c = &control;
    if (const int code = VbKeyCode(event); code && form_->HasHandler(name + ".KeyDown")) {
        EventArgs args;
        args.keyCode = code;
        args.shift = ShiftOf(event->modifiers());
        Act(c, [c, &args] { c->Raise("KeyDown", args); });
        if (detached_) return true;
    }
    const int ascii = AsciiOf(event);
    if (!ascii) return false;  // arrows, Delete, shortcuts: the widget's own editing
    const bool multiLine =
        control.Type() == ControlType::TextBox && static_cast<TextBox&>(control).MultiLine();
    if ((ascii == 13 && !multiLine) || ascii == 27) {
        // Enter on a button presses that button; elsewhere it presses the default one.
        Control* button = ascii == 13 && control.Type() == ControlType::CommandButton
                              ? &control
                              : DefaultButton(ascii == 27);
        if (button) {
            Act(button, [button] { static_cast<CommandButton*>(button)->Click(); });
            return true;
        }
    }
    ControlView* view = ViewOf(control);
    return view && view->TypeKey(ascii);
}

bool FormWindow::HandleMouse(Control& control, QObject* watched, QMouseEvent* event) {
    if (ControlView* view = ViewOf(control); view && control.Type() == ControlType::Grid)
        return view->Mouse(watched, event);
    Control* c = &control;
    const std::string name = control.Name();
    EventArgs args;
    args.button = ButtonOf(event->button());
    args.shift = ShiftOf(event->modifiers());
    args.x = scale_.TwipsX(event->position().x());
    args.y = scale_.TwipsY(event->position().y());
    switch (event->type()) {
        case QEvent::MouseButtonPress:
            if (form_->HasHandler(name + ".MouseDown"))
                Act(c, [c, args]() mutable { c->Raise("MouseDown", args); });
            break;
        case QEvent::MouseButtonRelease: {
            if (form_->HasHandler(name + ".MouseUp"))
                Act(c, [c, args]() mutable { c->Raise("MouseUp", args); });
            if (detached_) return true;
            const bool clickable = control.Type() == ControlType::Label ||
                                   control.Type() == ControlType::Image ||
                                   control.Type() == ControlType::Frame;
            auto* w = qobject_cast<QWidget*>(watched);
            if (clickable && args.button == 1 && w &&
                w->rect().contains(event->position().toPoint()))
                Act(c, [c] { c->Raise("Click"); });
            break;
        }
        case QEvent::MouseButtonDblClick:
            if (args.button == 1 && form_->HasHandler(name + ".DblClick")) {
                Act(c, [c] { c->Raise("DblClick"); });
                return true;
            }
            break;
        default:
            break;
    }
    return false;
}

// A control with dragging on is dragged by the mouse; the control it is dropped on gets
// DragDrop with the dragged control as its source.
bool FormWindow::HandleDrag(Control& control, QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::MouseButtonPress: {
            auto* mouse = static_cast<QMouseEvent*>(event);
            if (control.DragEnabled() && mouse->button() == Qt::LeftButton) {
                dragSource_ = control.Key();
                dragStart_ = mouse->globalPosition().toPoint();
            }
            return false;
        }
        case QEvent::MouseMove: {
            auto* mouse = static_cast<QMouseEvent*>(event);
            if (dragSource_ != control.Key() || !(mouse->buttons() & Qt::LeftButton) ||
                (mouse->globalPosition().toPoint() - dragStart_).manhattanLength() <
                    QApplication::startDragDistance())
                return false;
            const std::string source = dragSource_;
            dragSource_.clear();
            auto* drag = new QDrag(qobject_cast<QWidget*>(watched));
            auto* data = new QMimeData;
            data->setData(kDragFormat, QByteArray::fromStdString(source));
            drag->setMimeData(data);
            drag->exec(Qt::MoveAction);
            return true;
        }
        case QEvent::DragEnter:
        case QEvent::DragMove: {
            auto* drag = static_cast<QDropEvent*>(event);
            if (!drag->mimeData()->hasFormat(kDragFormat)) return false;
            drag->acceptProposedAction();
            return true;
        }
        case QEvent::Drop: {
            auto* drop = static_cast<QDropEvent*>(event);
            if (!drop->mimeData()->hasFormat(kDragFormat)) return false;
            drop->acceptProposedAction();
            Control* source = form_->Find(drop->mimeData()->data(kDragFormat).toStdString());
            Control* target = &control;
            const double x = scale_.TwipsX(drop->position().x());
            const double y = scale_.TwipsY(drop->position().y());
            Act(target, [target, source, x, y] {
                EventArgs args;
                args.source = source;
                args.x = x;
                args.y = y;
                target->Raise("DragDrop", args);
            });
            return true;
        }
        default:
            return false;
    }
}

bool FormWindow::eventFilter(QObject* watched, QEvent* event) {
    if (detached_ || ProgramHasEnded()) return false;
    auto it = watched_.find(watched);
    if (it == watched_.end()) return false;
    Control& control = *it->second;
    switch (event->type()) {
        case QEvent::KeyPress:
            if (TurnPage(static_cast<QKeyEvent*>(event))) return true;
            return HandleKey(control, static_cast<QKeyEvent*>(event));
        case QEvent::MouseButtonPress:
            HandleDrag(control, watched, event);
            return HandleMouse(control, watched, static_cast<QMouseEvent*>(event));
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
            return HandleMouse(control, watched, static_cast<QMouseEvent*>(event));
        case QEvent::DragEnter:
        case QEvent::DragMove:
        case QEvent::Drop:
            return HandleDrag(control, watched, event);
        case QEvent::MouseMove:
            if (HandleDrag(control, watched, event)) return true;
            if (control.Type() == ControlType::Grid)
                return HandleMouse(control, watched, static_cast<QMouseEvent*>(event));
            return false;
        case QEvent::FocusIn:
        case QEvent::FocusOut: {
            if (watched != WidgetOf(control)) return false;
            const auto reason = static_cast<QFocusEvent*>(event)->reason();
            if (reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason)
                return false;
            const bool in = event->type() == QEvent::FocusIn;
            if (in) form_->SetFocusedControl(&control);
            const std::string handler = control.Name() + (in ? ".GotFocus" : ".LostFocus");
            if (!form_->HasHandler(handler)) return false;
            // As on the original platform, the focus events run after the current one.
            const std::string key = control.Key();
            QTimer::singleShot(0, this, [this, key, in] {
                if (detached_) return;
                if (Control* c = form_->Find(key))
                    Act(c, [c, in] { c->Raise(in ? "GotFocus" : "LostFocus"); });
            });
            return false;
        }
        default:
            return false;
    }
}

bool FormWindow::TurnPage(QKeyEvent* event) {
    if (!(event->modifiers() & Qt::ControlModifier) || detached_) return false;
    int direction = 0;
    switch (event->key()) {
        case Qt::Key_Tab:
        case Qt::Key_PageDown:
            direction = event->modifiers() & Qt::ShiftModifier ? -1 : 1;
            break;
        case Qt::Key_Backtab:
        case Qt::Key_PageUp:
            direction = -1;
            break;
        default:
            return false;
    }
    // The innermost tab control around the focus, or else the form's first one on show.
    TabView* pages = nullptr;
    for (QWidget* w = QApplication::focusWidget(); w && w != this && !pages; w = w->parentWidget())
        if (auto it = watched_.find(w); it != watched_.end())
            pages = dynamic_cast<TabView*>(ViewOf(*it->second));
    for (auto& view : views_) {
        if (pages) break;
        if (auto* tab = dynamic_cast<TabView*>(view.get()); tab && tab->Widget()->isVisible())
            pages = tab;
    }
    if (!pages) return false;
    pages->Step(direction);
    return true;
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
    if (TurnPage(event)) return;
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if ((enter || event->key() == Qt::Key_Escape) && !detached_) {
        if (Control* button = DefaultButton(!enter)) {
            Act(button, [button] { static_cast<CommandButton*>(button)->Click(); });
            return;
        }
    }
    QWidget::keyPressEvent(event);
}

void FormWindow::closeEvent(QCloseEvent* event) {
    // The screen's own logic decides; most end the whole program.
    event->ignore();
    if (detached_ || ProgramHasEnded()) return;
    Form* form = form_;
    Act(nullptr, [form] { form->UserClose(); });
}

void FormWindow::FocusControl(Control& control) {
    if (detached_) return;
    if (QWidget* w = WidgetOf(control)) w->setFocus(Qt::OtherFocusReason);
}

void FormWindow::ShowPopup(Control& menu) {
    auto* view = dynamic_cast<MenuView*>(ViewOf(menu));
    if (!view || !view->Menu()) return;
    Flush();
    view->Menu()->exec(QCursor::pos());
}

}  // namespace platform::qt

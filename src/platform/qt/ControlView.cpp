#include "platform/qt/ControlView.h"

#include <QApplication>

#include "platform/Form.h"
#include "platform/qt/Ansi.h"
#include "platform/qt/CalendarView.h"
#include "platform/qt/CheckBoxView.h"
#include "platform/qt/ComboBoxView.h"
#include "platform/qt/CommandButtonView.h"
#include "platform/qt/DatePickerView.h"
#include "platform/qt/FormWindow.h"
#include "platform/qt/FrameView.h"
#include "platform/qt/GridView.h"
#include "platform/qt/ImageView.h"
#include "platform/qt/LabelView.h"
#include "platform/qt/ListBoxView.h"
#include "platform/qt/MenuView.h"
#include "platform/qt/OptionButtonView.h"
#include "platform/qt/ProgressBarView.h"
#include "platform/qt/TabView.h"
#include "platform/qt/TextBoxView.h"
#include "platform/qt/TimerView.h"
#include "platform/qt/UpDownView.h"
#include "platform/qt/WidgetText.h"

namespace platform::qt {
namespace {

constexpr double kDefaultFontSize = 8.25;

}  // namespace

void ControlView::SetWidget(QWidget* widget) {
    widget_ = widget;
    widget->setObjectName(QString::fromStdString(control_.Key()));
    window_.Watch(widget, control_);
    // Pictures and labels that answer a click show it under the mouse.
    const bool picture =
        control_.Type() == ControlType::Image || control_.Type() == ControlType::Label;
    if (picture && control_.Parent().HasHandler(control_.Name() + ".Click"))
        widget->setCursor(Qt::PointingHandCursor);
}

QWidget* ControlView::Canvas() const {
    return window_.Canvas();
}

bool ControlView::Syncing() const {
    return window_.Syncing();
}

void ControlView::Sync() {
    if (widget_) SyncCommon();
    SyncOwn();
}

void ControlView::SyncCommon() {
    Control& c = control_;
    QWidget* w = widget_;
    QWidget* parent = window_.ParentFor(c);
    if (w->parentWidget() != parent) {
        w->setParent(parent);
        window_.MarkFocusOrderDirty();
    }
    const Scale& scale = window_.CurrentScale();
    // From the corners, so that controls that touch in twips touch on the screen too.
    const int left = scale.X(c.Left()), top = scale.Y(c.Top());
    w->setGeometry(left, top, std::max(1, scale.X(c.Left() + c.Width()) - left),
                   std::max(1, scale.Y(c.Top() + c.Height()) - top));
    w->setEnabled(c.Enabled());
    w->setToolTip(FromAnsi(c.ToolTipText()));
    // In points, not whole pixels, so that text shrinks and grows exactly as its box does.
    QFont font = QApplication::font();
    const double points = c.FontSize() > 0 ? c.FontSize() : kDefaultFontSize;
    font.setPointSizeF(scale.FontPixels(points) * 72.0 / w->logicalDpiY());
    font.setBold(c.FontBold());
    w->setFont(font);
    QPalette pal = parent->palette();
    const bool ownFore = c.ForeColor() != kWindowText;
    const bool textLike = c.Type() == ControlType::TextBox || c.Type() == ControlType::ListBox ||
                          c.Type() == ControlType::ComboBox || c.Type() == ControlType::Grid;
    if (ownFore) {
        const QColor fore = ToColor(c.ForeColor());
        pal.setColor(QPalette::WindowText, fore);
        pal.setColor(QPalette::ButtonText, fore);
        pal.setColor(QPalette::Text, fore);
    }
    const bool ownBack = textLike ? c.BackColor() != kWhite : c.BackColor() != kWindowBackground;
    if (ownBack && c.Type() != ControlType::CommandButton) {
        const QColor back = ToColor(c.BackColor());
        pal.setColor(textLike ? QPalette::Base : QPalette::Window, back);
        w->setAutoFillBackground(!textLike);
    }
    w->setPalette(pal);
    w->setVisible(c.Visible());
}

QWidget* ControlView::FocusTarget() const {
    if (!widget_) return nullptr;
    QWidget* target = widget_->focusProxy() ? widget_->focusProxy() : widget_;
    return target->focusPolicy() & Qt::TabFocus ? target : nullptr;
}

bool ControlView::TypeKey(int ascii) {
    Control* c = &control_;
    if (!c->Parent().HasHandler(c->Name() + ".KeyPress")) return false;
    EventArgs args;
    args.keyAscii = ascii;
    window_.Act(c, [c, &args] { c->Raise("KeyPress", args); });
    return args.keyAscii == 0;
}

std::unique_ptr<ControlView> MakeControlView(Control& control, FormWindow& window) {
    switch (control.Type()) {
        case ControlType::CommandButton:
            return std::make_unique<CommandButtonView>(control, window);
        case ControlType::Label:
            return std::make_unique<LabelView>(control, window);
        case ControlType::TextBox:
            return std::make_unique<TextBoxView>(control, window);
        case ControlType::CheckBox:
            return std::make_unique<CheckBoxView>(control, window);
        case ControlType::OptionButton:
            return std::make_unique<OptionButtonView>(control, window);
        case ControlType::Frame:
            return std::make_unique<FrameView>(control, window);
        case ControlType::ListBox:
            return std::make_unique<ListBoxView>(control, window);
        case ControlType::ComboBox:
            return std::make_unique<ComboBoxView>(control, window);
        case ControlType::Grid:
            return std::make_unique<GridView>(control, window);
        case ControlType::MonthView:
            return std::make_unique<CalendarView>(control, window);
        case ControlType::DatePicker:
            return std::make_unique<DatePickerView>(control, window);
        case ControlType::UpDown:
            return std::make_unique<UpDownView>(control, window);
        case ControlType::Tab:
            return std::make_unique<TabView>(control, window);
        case ControlType::ProgressBar:
            return std::make_unique<ProgressBarView>(control, window);
        case ControlType::Image:
            return std::make_unique<ImageView>(control, window);
        case ControlType::Menu:
            return std::make_unique<MenuView>(control, window);
        case ControlType::Timer:
            return std::make_unique<TimerView>(control, window);
    }
    return nullptr;
}

}  // namespace platform::qt

#include "platform/qt/MenuView.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include "platform/Form.h"
#include "platform/qt/Ansi.h"
#include "platform/qt/FormWindow.h"

namespace platform::qt {
namespace {

bool Contains(const Control& parent, const Control& child) {
    return child.Type() == ControlType::Menu && &child != &parent &&
           (child.Container() == parent.Name() || child.Container() == parent.Key());
}

// The menu a child names as its container, by key or, for a menu array, by name.
Control* ParentMenu(const Control& child) {
    Form& form = child.Parent();
    if (Control* parent = form.Find(child.Container())) return parent;
    for (Control* other : form.Controls())
        if (other->Type() == ControlType::Menu && other->Name() == child.Container()) return other;
    return nullptr;
}

}  // namespace

MenuView::MenuView(Control& control, FormWindow& window) : ControlView(control, window) {
    Control* c = &control_;
    bool hasChildren = false;
    for (Control* other : control_.Parent().Controls())
        if (Contains(control_, *other)) hasChildren = true;
    if (hasChildren) {
        menu_ = new QMenu(&window_);
        action_ = menu_->menuAction();
        QObject::connect(menu_, &QMenu::aboutToShow, &window_, [this, c] {
            if (c->Parent().HasHandler(c->Name() + ".Click"))
                window_.Act(c, [c] { c->Raise("Click"); });
        });
    } else {
        action_ = new QAction(&window_);
        QObject::connect(action_, &QAction::triggered, &window_,
                         [this, c] { window_.Act(c, [c] { c->Raise("Click"); }); });
    }
    action_->setObjectName(QString::fromStdString(control_.Key()));
}

void MenuView::Attach(QMenuBar* bar) {
    if (control_.Container().empty()) {
        bar->addAction(action_);
        return;
    }
    if (Control* parent = ParentMenu(control_))
        if (auto* view = dynamic_cast<MenuView*>(window_.ViewOf(*parent)); view && view->menu_)
            view->menu_->addAction(action_);
}

void MenuView::SyncOwn() {
    const QString caption = FromAnsi(control_.Caption());
    action_->setSeparator(caption == QStringLiteral("-"));
    action_->setText(caption);
    if (menu_) menu_->setTitle(caption);
    action_->setVisible(control_.Visible());
    action_->setEnabled(control_.Enabled());
    const bool checked = static_cast<platform::Menu&>(control_).Checked();
    action_->setCheckable(checked || action_->isCheckable());
    action_->setChecked(checked);
    if (control_.Container().empty()) window_.MarkFormDirty();  // the menu bar may come or go
}

}  // namespace platform::qt

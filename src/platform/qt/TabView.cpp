#include "platform/qt/TabView.h"

#include <QApplication>
#include <QFrame>
#include <QTabBar>

#include "platform/qt/Ansi.h"
#include "platform/qt/FormWindow.h"

namespace platform::qt {

class TabHost : public QWidget {
  public:
    explicit TabHost(QWidget* parent) : QWidget(parent) {
        panel = new QFrame(this);
        panel->setFrameStyle(QFrame::StyledPanel | QFrame::Raised);
        bar = new QTabBar(this);
        bar->setDrawBase(false);
        bar->setExpanding(false);
    }
    QWidget* Page(size_t index) {
        while (pages.size() <= index) {
            auto* page = new QWidget(this);
            page->setGeometry(rect());
            page->setVisible(false);
            pages.push_back(page);
            bar->raise();
        }
        return pages[index];
    }
    void ShowPage(int index) {
        for (size_t i = 0; i < pages.size(); ++i)
            pages[i]->setVisible(static_cast<int>(i) == index);
        bar->raise();
    }
    QFrame* panel;
    QTabBar* bar;
    std::vector<QWidget*> pages;

    void Relayout() {
        const int barHeight = bar->sizeHint().height();
        bar->setGeometry(0, 0, width(), barHeight);
        panel->setGeometry(0, barHeight - 1, width(), height() - barHeight + 1);
        for (QWidget* p : pages) p->setGeometry(rect());
    }

  protected:
    void resizeEvent(QResizeEvent*) override { Relayout(); }
};

TabView::TabView(Control& control, FormWindow& window) : ControlView(control, window) {
    host_ = new TabHost(Canvas());
    Tab* tab = &Model();
    QObject::connect(host_->bar, &QTabBar::currentChanged, &window_, [this, tab](int index) {
        if (Syncing() || index < 0 || index == tab->CurrentTab()) return;
        window_.Act(tab, [tab, index] { tab->SetTab(index); });
    });
    SetWidget(host_);
}

QWidget* TabView::PlaceFor(const Control& child) {
    return host_->Page(static_cast<size_t>(std::max(0, child.TabPage())));
}

QWidget* TabView::FocusTarget() const {
    return host_->bar;
}

void TabView::Step(int direction) {
    Tab* tab = &Model();
    const int count = tab->Tabs();
    for (int step = 1; step < count; ++step) {
        const int index = ((tab->CurrentTab() + direction * step) % count + count) % count;
        if (!tab->TabEnabled(index) || !tab->TabVisible(index)) continue;
        window_.Act(tab, [tab, index] { tab->SetTab(index); });
        // Unless the page's own logic put the focus on one of its controls, the strip has it.
        QWidget* now = QApplication::focusWidget();
        if (!window_.Detached() && (!now || !now->isVisible() || !host_->isAncestorOf(now)))
            host_->bar->setFocus(Qt::TabFocusReason);
        return;
    }
}

void TabView::SyncOwn() {
    Tab& tab = Model();
    QTabBar* bar = host_->bar;
    while (bar->count() < tab.Tabs()) bar->addTab(QString());
    while (bar->count() > tab.Tabs()) bar->removeTab(bar->count() - 1);
    for (int i = 0; i < tab.Tabs(); ++i) {
        bar->setTabText(i, FromAnsi(tab.TabCaption(i)));
        bar->setTabEnabled(i, tab.TabEnabled(i));
        bar->setTabVisible(i, tab.TabVisible(i));
        host_->Page(static_cast<size_t>(i));
    }
    if (bar->currentIndex() != tab.CurrentTab()) bar->setCurrentIndex(tab.CurrentTab());
    host_->ShowPage(tab.CurrentTab());
    // The strip's height follows the font; the panel below it follows the strip.
    host_->Relayout();
}

}  // namespace platform::qt

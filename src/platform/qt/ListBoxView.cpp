#include "platform/qt/ListBoxView.h"

#include <QListWidget>

#include "platform/qt/Ansi.h"
#include "platform/qt/FormWindow.h"

namespace platform::qt {

ListBoxView::ListBoxView(Control& control, FormWindow& window) : ControlView(control, window) {
    auto* list = new QListWidget(Canvas());
    auto* model = static_cast<ListBox*>(&control_);
    list->setSelectionMode(model->MultiSelect() ? QAbstractItemView::MultiSelection
                                                : QAbstractItemView::SingleSelection);
    list->setUniformItemSizes(true);
    QObject::connect(list, &QListWidget::currentRowChanged, &window_, [this, model](int row) {
        if (model->MultiSelect() || row == model->ListIndex()) return;
        window_.Act(model, [model, row] { model->SetListIndex(row); });
    });
    QObject::connect(list, &QListWidget::itemSelectionChanged, &window_, [this, model, list] {
        if (Syncing() || !model->MultiSelect()) return;
        window_.Act(model, [model, list] {
            for (int i = 0; i < model->ListCount() && i < list->count(); ++i) {
                const bool selected = list->item(i)->isSelected();
                if (selected != model->Selected(i)) model->SetSelected(i, selected);
            }
        });
    });
    window_.Watch(list->viewport(), control_);
    SetWidget(list);
}

void ListBoxView::SyncOwn() {
    auto* list = static_cast<QListWidget*>(widget_);
    auto& model = static_cast<ListBox&>(control_);
    QStringList items;
    items.reserve(model.ListCount());
    for (const ListEntry& e : model.Items()) items.append(FromAnsi(e.text));
    if (items != shown_) {
        list->clear();
        list->addItems(items);
        shown_ = items;
    }
    list->setSelectionMode(model.MultiSelect() ? QAbstractItemView::MultiSelection
                                               : QAbstractItemView::SingleSelection);
    if (model.MultiSelect()) {
        for (int i = 0; i < list->count(); ++i) list->item(i)->setSelected(model.Selected(i));
    } else if (list->currentRow() != model.ListIndex()) {
        list->setCurrentRow(model.ListIndex());
        if (model.ListIndex() < 0) list->clearSelection();
    }
    if (model.TopIndex() != topIndex_) {
        topIndex_ = model.TopIndex();
        if (QListWidgetItem* top = list->item(model.TopIndex()))
            list->scrollToItem(top, QAbstractItemView::PositionAtTop);
    }
}

}  // namespace platform::qt

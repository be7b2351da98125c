#include <uiox_qt/CellMenus.h>

#include <uiox/UserEvents.h>
#include <uiox_qt/OptionBox.h>
#include <uiox_qt/Text.h>
#include <uiox_qt/TreeModel.h>

#include <QTreeView>

namespace uiox_qt {
namespace {

bool IsMenu(const uiox::Widget* control) { return control && control->Class() == uiox::WidgetClass::OptionMenu; }

}  // namespace

void CellMenus::Follow(uiox::CellPlace cell) {
  const uiox::TreeWidget* tree = model_.Tree();
  if (!tree || model_.IsSuspended()) return;
  const uiox::Widget* control = tree->ControlIn(cell);
  if (!IsMenu(control)) {
    Take(cell);
    return;
  }
  const QModelIndex index = model_.IndexOf(cell);
  auto* box = qobject_cast<QComboBox*>(view_.indexWidget(index));
  if (!box) box = Put(cell, *control);
  FillOptionBox(*box, *control);
}

QComboBox* CellMenus::Put(uiox::CellPlace cell, const uiox::Widget& control) {
  auto* box = new OptionBox;
  box->SetImageOnly(true);
  const uiox::ControlId id = control.Control();
  QObject::connect(box, &QComboBox::activated, box, [this, id, box](int row) {
    uiox::TreeWidget* tree = model_.Tree();
    if (!tree) return;
    const uiox::CellPlace place = tree->Store().PlaceOf(id);
    const std::string item = OptionName(*box, row);
    if (place) uiox::user::ChooseCellOption(*tree, place, item);
  });
  view_.setIndexWidget(model_.IndexOf(cell), box);
  return box;
}

void CellMenus::Take(uiox::CellPlace cell) {
  const QModelIndex index = model_.IndexOf(cell);
  if (index.isValid() && view_.indexWidget(index)) view_.setIndexWidget(index, nullptr);
}

void CellMenus::FollowAll() {
  uiox::TreeWidget* tree = model_.Tree();
  if (!tree || model_.IsSuspended()) return;
  for (const uiox::Widget* control : tree->Controls()) {
    if (!IsMenu(control)) continue;
    const uiox::CellPlace cell = tree->Store().PlaceOf(control->Control());
    if (cell) Follow(cell);
  }
}

bool CellMenus::Open(uiox::CellPlace cell) {
  auto* box = qobject_cast<QComboBox*>(view_.indexWidget(model_.IndexOf(cell)));
  if (!box) return false;
  box->setFocus(Qt::MouseFocusReason);
  box->showPopup();
  return true;
}

}  // namespace uiox_qt

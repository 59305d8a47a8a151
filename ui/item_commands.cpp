#include "ui/item_commands.h"

#include <utility>

#include "platform/list_view.h"
#include "platform/message_box.h"
#include "ui/app_state.h"
#include "ui/binding.h"
#include "ui/item_dialogs.h"

namespace tessaline {
namespace {

void LinesChanged() {
    RefreshLines();
    RefreshTotal();
    MarkDirty();
}

void SeparateItemsChanged() {
    RefreshSeparateItems();
    MarkDirty();
}

// The element of the selected row, or null when no row, or none that the record has, is selected.
template <typename Element>
Element* SelectedElement(HWND list, std::vector<Element>& elements) {
    const int index = SelectedRowData(list);
    const bool known = index >= 0 && static_cast<std::size_t>(index) < elements.size();
    return known ? &elements[static_cast<std::size_t>(index)] : nullptr;
}

ServiceLine* SelectedLine() {
    return SelectedElement(App()->linesList, App()->currentEstimate.Lines);
}

SeparateItem* SelectedSeparateItem() {
    return SelectedElement(App()->separateList, App()->currentEstimate.SeparateItems);
}

template <typename Element>
void Erase(std::vector<Element>& elements, const Element* element) {
    elements.erase(elements.begin() + (element - elements.data()));
}

}  // namespace

// An automatic save while a dialog or a question is open may replace the whole record by its next
// revision, so elements are looked up again afterwards. The selection cannot change meanwhile.

void AddLine() {
    ServiceLine line;
    if (!EditServiceLine(App()->mainWindow, line)) return;
    App()->currentEstimate.Lines.push_back(std::move(line));
    LinesChanged();
}

void EditLine() {
    const ServiceLine* selected = SelectedLine();
    if (selected == nullptr) return;
    ServiceLine line = *selected;
    if (!EditServiceLine(App()->mainWindow, line)) return;
    if (ServiceLine* target = SelectedLine()) *target = std::move(line);
    LinesChanged();
}

void RemoveLine() {
    if (SelectedLine() == nullptr) return;
    if (!AskYesNo(App()->mainWindow, L"Remove the selected item?", L"Remove")) return;
    if (const ServiceLine* target = SelectedLine()) Erase(App()->currentEstimate.Lines, target);
    LinesChanged();
}

void AddSeparateItem() {
    SeparateItem item;
    if (!EditSeparateItem(App()->mainWindow, item)) return;
    App()->currentEstimate.SeparateItems.push_back(std::move(item));
    SeparateItemsChanged();
}

void EditSelectedSeparateItem() {
    const SeparateItem* selected = SelectedSeparateItem();
    if (selected == nullptr) return;
    SeparateItem item = *selected;
    if (!EditSeparateItem(App()->mainWindow, item)) return;
    if (SeparateItem* target = SelectedSeparateItem()) *target = std::move(item);
    SeparateItemsChanged();
}

// Removed without a question, unlike an expected item: it carries no charge.
void RemoveSeparateItem() {
    const SeparateItem* target = SelectedSeparateItem();
    if (target == nullptr) return;
    Erase(App()->currentEstimate.SeparateItems, target);
    SeparateItemsChanged();
}

}  // namespace tessaline

#include "ui/item_commands.h"

#include <utility>

#include "platform/list_view.h"
#include "platform/message_box.h"
#include "ui/app_state.h"
#include "ui/binding.h"
#include "ui/item_dialogs.h"

namespace tessaline {
namespace {

// The element of the selected row, or null when no row, or none that the record has, is selected.
template <typename Element>
Element* SelectedElement(HWND list, std::vector<Element>& elements) {
    const int index = SelectedRowData(list);
    const bool known = index >= 0 && static_cast<std::size_t>(index) < elements.size();
    return known ? &elements[static_cast<std::size_t>(index)] : nullptr;
}

ServiceLine* SelectedLine(Estimate& estimate) {
    return SelectedElement(App()->linesList, estimate.Lines);
}

SeparateItem* SelectedSeparateItem(Estimate& estimate) {
    return SelectedElement(App()->separateList, estimate.SeparateItems);
}

template <typename Element>
void Erase(std::vector<Element>& elements, const Element* element) {
    elements.erase(elements.begin() + (element - elements.data()));
}

}  // namespace

// An automatic save while a dialog or a question is open may replace the whole record by its next
// revision, so the record is copied, and elements are looked up, only afterwards. The selection
// cannot change meanwhile.

void AddLine() {
    EditServiceLine(App()->mainWindow, {}, [](const ServiceLine& line) {
        Estimate changed = App()->currentEstimate;
        changed.Lines.push_back(line);
        ChangeLines(std::move(changed));
    });
}

void EditLine() {
    const ServiceLine* selected = SelectedLine(App()->currentEstimate);
    if (selected == nullptr) return;
    EditServiceLine(App()->mainWindow, *selected, [](const ServiceLine& line) {
        Estimate changed = App()->currentEstimate;
        if (ServiceLine* target = SelectedLine(changed)) *target = line;
        ChangeLines(std::move(changed));
    });
}

void RemoveLine() {
    if (SelectedLine(App()->currentEstimate) == nullptr) return;
    if (!AskYesNo(App()->mainWindow, L"Remove the selected item?", L"Remove")) return;
    Estimate changed = App()->currentEstimate;
    if (const ServiceLine* target = SelectedLine(changed)) Erase(changed.Lines, target);
    ChangeLines(std::move(changed));
}

void AddSeparateItem() {
    EditSeparateItem(App()->mainWindow, {}, [](const SeparateItem& item) {
        Estimate changed = App()->currentEstimate;
        changed.SeparateItems.push_back(item);
        ChangeSeparateItems(std::move(changed));
    });
}

void EditSelectedSeparateItem() {
    const SeparateItem* selected = SelectedSeparateItem(App()->currentEstimate);
    if (selected == nullptr) return;
    EditSeparateItem(App()->mainWindow, *selected, [](const SeparateItem& item) {
        Estimate changed = App()->currentEstimate;
        if (SeparateItem* target = SelectedSeparateItem(changed)) *target = item;
        ChangeSeparateItems(std::move(changed));
    });
}

// Removed without a question, unlike an expected item: it carries no charge.
void RemoveSeparateItem() {
    Estimate changed = App()->currentEstimate;
    const SeparateItem* target = SelectedSeparateItem(changed);
    if (target == nullptr) return;
    Erase(changed.SeparateItems, target);
    ChangeSeparateItems(std::move(changed));
}

}  // namespace tessaline

#include "ui/commands/item_commands.h"

#include <utility>
#include <vector>

#include "platform/list_view.h"
#include "platform/message_box.h"
#include "ui/app_state.h"
#include "ui/dialogs/item_dialogs.h"
#include "ui/form/binding.h"

namespace tessaline {
namespace {

// What sets the commands of one list apart from those of the other.
template <typename Element>
struct ItemList {
    std::vector<Element> Estimate::*elements;
    HWND AppState::*list;
    void (*edit)(HWND owner, const Element& element, const Keep<Element>& keep);
    void (*change)(Estimate changed);
};

constexpr ItemList<ServiceLine> kExpectedItems = {&Estimate::Lines, &AppState::linesList,
                                                  EditServiceLine, ChangeLines};
constexpr ItemList<SeparateItem> kSeparateItems = {
    &Estimate::SeparateItems, &AppState::separateList, EditSeparateItem, ChangeSeparateItems};

// The element whose row is selected; null when no row is.
template <typename Element>
Element* Selected(const ItemList<Element>& items, Estimate& estimate) {
    std::vector<Element>& elements = estimate.*items.elements;
    const auto index = static_cast<std::size_t>(SelectedRowData(App()->*items.list));
    return index < elements.size() ? &elements[index] : nullptr;
}

// While a dialog or a question is open, an automatic save may put the next revision in the place
// of the whole record. So the record is copied, and the element looked up in it, only when the
// user has answered. The selected row stays the same meanwhile, because the owner is disabled.

template <typename Element>
void Add(const ItemList<Element>& items) {
    items.edit(App()->mainWindow, {}, [&items](const Element& element) {
        Estimate changed = App()->currentEstimate;
        (changed.*items.elements).push_back(element);
        items.change(std::move(changed));
    });
}

template <typename Element>
void Edit(const ItemList<Element>& items) {
    const Element* const selected = Selected(items, App()->currentEstimate);
    if (selected == nullptr) return;
    items.edit(App()->mainWindow, *selected, [&items](const Element& element) {
        Estimate changed = App()->currentEstimate;
        *Selected(items, changed) = element;
        items.change(std::move(changed));
    });
}

template <typename Element>
void Remove(const ItemList<Element>& items) {
    Estimate changed = App()->currentEstimate;
    std::vector<Element>& elements = changed.*items.elements;
    const Element* const target = Selected(items, changed);
    if (target == nullptr) return;
    elements.erase(elements.begin() + (target - elements.data()));
    items.change(std::move(changed));
}

}  // namespace

void AddLine() {
    Add(kExpectedItems);
}

void EditLine() {
    Edit(kExpectedItems);
}

void RemoveLine() {
    if (Selected(kExpectedItems, App()->currentEstimate) == nullptr) return;
    if (AskYesNo(App()->mainWindow, L"Remove the selected item?", L"Remove")) {
        Remove(kExpectedItems);
    }
}

void AddSeparateItem() {
    Add(kSeparateItems);
}

void EditSelectedSeparateItem() {
    Edit(kSeparateItems);
}

// Not asked about, unlike an expected item: it carries no charge, and is quickly typed again.
void RemoveSeparateItem() {
    Remove(kSeparateItems);
}

}  // namespace tessaline

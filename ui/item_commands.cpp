#include "ui/item_commands.h"

#include <utility>
#include <vector>

#include "platform/list_view.h"
#include "platform/message_box.h"
#include "ui/app_state.h"
#include "ui/binding.h"
#include "ui/item_dialogs.h"

namespace tessaline {
namespace {

// What sets the commands of one list apart from those of the other.
template <typename Element>
struct ItemList {
    std::vector<Element> Estimate::*elements;
    HWND AppState::*list;
    void (*edit)(HWND owner, const Element& element, void (*keep)(const Element&));
    void (*change)(Estimate changed);

    // The element of the selected row, or null when no row, or none that the record has, is
    // selected.
    Element* Selected(Estimate& estimate) const {
        const int index = SelectedRowData(App()->*list);
        const bool known =
            index >= 0 && static_cast<std::size_t>(index) < (estimate.*elements).size();
        return known ? &(estimate.*elements)[static_cast<std::size_t>(index)] : nullptr;
    }
};

constexpr ItemList<ServiceLine> kLines = {&Estimate::Lines, &AppState::linesList, EditServiceLine,
                                          ChangeLines};
constexpr ItemList<SeparateItem> kSeparateItems = {
    &Estimate::SeparateItems, &AppState::separateList, EditSeparateItem, ChangeSeparateItems};

// An automatic save while a dialog or a question is open may replace the whole record by its next
// revision, so the record is copied, and elements are looked up, only afterwards. The selection
// cannot change meanwhile.

template <const auto& Items>
void Add() {
    Items.edit(App()->mainWindow, {}, [](const auto& element) {
        Estimate changed = App()->currentEstimate;
        (changed.*Items.elements).push_back(element);
        Items.change(std::move(changed));
    });
}

template <const auto& Items>
void Edit() {
    const auto* selected = Items.Selected(App()->currentEstimate);
    if (selected == nullptr) return;
    Items.edit(App()->mainWindow, *selected, [](const auto& element) {
        Estimate changed = App()->currentEstimate;
        if (auto* target = Items.Selected(changed)) *target = element;
        Items.change(std::move(changed));
    });
}

template <const auto& Items>
void Remove() {
    Estimate changed = App()->currentEstimate;
    auto& elements = changed.*Items.elements;
    const auto* target = Items.Selected(changed);
    if (target == nullptr) return;
    elements.erase(elements.begin() + (target - elements.data()));
    Items.change(std::move(changed));
}

}  // namespace

void AddLine() {
    Add<kLines>();
}

void EditLine() {
    Edit<kLines>();
}

void RemoveLine() {
    if (kLines.Selected(App()->currentEstimate) == nullptr) return;
    if (AskYesNo(App()->mainWindow, L"Remove the selected item?", L"Remove")) Remove<kLines>();
}

void AddSeparateItem() {
    Add<kSeparateItems>();
}

void EditSelectedSeparateItem() {
    Edit<kSeparateItems>();
}

// Without a question, unlike an expected item; this is wanted.
void RemoveSeparateItem() {
    Remove<kSeparateItems>();
}

}  // namespace tessaline

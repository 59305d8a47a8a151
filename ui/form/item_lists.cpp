#include "ui/form/item_lists.h"

#include "model/money.h"

namespace tessaline {
namespace {

// clang-format off
constexpr TableColumn<ServiceLine> kLineTable[] = {
    {{L"Service / Item", 230}, [](const ServiceLine& line) { return line.ServiceItem; }},
    {{L"Location", 155}, [](const ServiceLine& line) { return line.ServiceAddress; }},
    {{L"Diagnosis", 90}, [](const ServiceLine& line) { return line.DiagnosisCode; }},
    {{L"Code", 105}, CodeText},
    {{L"Qty", 45, true}, [](const ServiceLine& line) { return std::to_wstring(line.Quantity); }},
    {{L"Charge", 90, true},
     [](const ServiceLine& line) { return FormatMoney(line.ExpectedCharge); }},
    {{L"Total", 90, true}, [](const ServiceLine& line) { return FormatMoney(LineTotal(line)); }},
};

constexpr TableColumn<SeparateItem> kSeparateTable[] = {
    {{L"Service / Item", 260}, [](const SeparateItem& item) { return item.ServiceItem; }},
    {{L"Provider / Facility or Instructions for Obtaining GFE", 575},
     [](const SeparateItem& item) { return item.ProviderFacilityInstructions; }},
};
// clang-format on

constexpr auto kLineColumns = ColumnsOf(kLineTable);
constexpr auto kSeparateColumns = ColumnsOf(kSeparateTable);

}  // namespace

std::span<const ListColumn> LineColumns() {
    return kLineColumns;
}

RowTexts LineTexts(const Estimate& estimate) {
    RowTexts rows;
    for (const ServiceLine& line : estimate.Lines) rows.push_back(CellsOf(kLineTable, line));
    return rows;
}

std::span<const ListColumn> SeparateColumns() {
    return kSeparateColumns;
}

RowTexts SeparateTexts(const Estimate& estimate) {
    RowTexts rows;
    for (const SeparateItem& item : estimate.SeparateItems) {
        rows.push_back(CellsOf(kSeparateTable, item));
    }
    return rows;
}

}  // namespace tessaline

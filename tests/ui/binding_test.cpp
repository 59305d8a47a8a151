// The form against the record, field by field.
#include "ui/form/binding.h"

#include "platform/controls.h"
#include "tests/support/record_values.h"
#include "tests/ui/running_program.h"
#include "tests/ui/told_window.h"
#include "ui/form/form_rows.h"

using namespace tessaline;

TEST_CASE("Every field shows its member, is a change when it is typed or chosen, and reads back") {
    const RunningProgram program(96);
    AppState& app = *App();
    const Estimate distinct = DistinctEstimate();
    BindToForm(distinct);
    ForEachFieldRow([&](const FieldRow& row) {
        CAPTURE(row.label);
        const HWND control = ControlById(row.id);
        const auto isNoted = [&] { return std::exchange(app.IsModified, false); };
        if (row.kind == FieldKind::kCheck) {
            CHECK(SendMessageW(control, BM_GETCHECK, 0, 0) == BST_CHECKED);
            SendMessageW(control, BM_CLICK, 0, 0);
            CHECK(isNoted());
        } else if (row.kind == FieldKind::kChoice) {
            // A text of no entry shows the first.
            for (const wchar_t* const entry : row.entries) {
                CHECK(ChoiceText(control) == entry);
                SendMessageW(control, WM_KEYDOWN, VK_DOWN, 0);
                CHECK((isNoted() || entry == row.entries.back()));
            }
        } else {
            std::wstring shown = row.text(app.currentEstimate);
            CHECK(WindowText(control) == shown);
            SendMessageW(control, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(L" \u00E9 "));
            CHECK(isNoted());
            SetWindowTextW(control, (L" x" + shown + L" ").c_str());
        }
    });
    ReadForm();
    const Estimate& read = app.currentEstimate;
    Estimate wanted = distinct;
    wanted.NotYetScheduled = false;
    wanted.LastModifiedOn = read.LastModifiedOn;
    ForEachFieldRow([&](const FieldRow& row) {
        if (row.kind == FieldKind::kCheck) return;
        std::wstring& text = row.text(wanted);
        if (row.kind == FieldKind::kChoice) text = row.entries.back();
        if (row.kind == FieldKind::kEdit) text.insert(0, L"x");
        // Notes are read as they stand.
        if (row.kind == FieldKind::kNotes) text = L" x" + text + L" ";
    });
    CHECK(Differences(read, wanted) == L"");
}

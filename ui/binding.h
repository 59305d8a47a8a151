// Moves an estimate between the record and the form.
#pragma once

#include <string>

#include "model/estimate.h"

namespace tessaline {

/// Makes `estimate` the current record and shows it. Marks and messages of earlier checks go; the
/// state is clean afterwards, although setting texts raises change notifications.
void BindToForm(Estimate estimate);

/// Reads every control into the current record and stamps its modification. The two lists are not
/// read: they only show what the record holds.
void ReadForm();

/// The trimmed text of a control of the form.
[[nodiscard]] std::wstring ControlText(int id);

/// Refill the two lists and the total from the current record.
void RefreshLines();
void RefreshSeparateItems();
void RefreshTotal();

/// Shows a section's message line with `text`; an empty text hides it.
void SetSectionMessage(int section, const std::wstring& text);

}  // namespace tessaline

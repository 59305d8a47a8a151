// Moves an estimate between the record and the form.
#pragma once

#include <string>

#include "model/estimate.h"

namespace tessaline {

/// Makes `estimate` the current record and shows it. Marks and messages of earlier checks go; the
/// state is clean afterwards, although setting texts raises change notifications. When memory runs
/// out, the former record stays and is shown.
void BindToForm(Estimate estimate);

/// Reads every control into the current record and stamps its modification. The two lists are not
/// read: they only show what the record holds.
void ReadForm();

/// The trimmed text of a control of the form.
[[nodiscard]] std::wstring ControlText(int id);

/// Make `changed`, which differs from the current record in its lines or its separate items alone,
/// the current record, show them and note the change. All of it, or nothing when memory runs out.
void ChangeLines(Estimate changed);
void ChangeSeparateItems(Estimate changed);

/// Draws the form anew. Edits take the colour of their marks, and transparent controls (labels,
/// the edit of the dates while it is disabled) lose the text they had before, only with the whole.
void RedrawForm();

/// Shows a section's message line with `text`; an empty text hides it.
void SetSectionMessage(int section, const std::wstring& text);

}  // namespace tessaline

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

/// Replace the current record by `changed`, which differs in its lines or in its separate items
/// alone, show these and mark the state as modified. When memory runs out, nothing is changed.
void ChangeLines(Estimate changed);
void ChangeSeparateItems(Estimate changed);

/// Draws the whole form anew. Edits ask for the colour of their marks only when they are drawn,
/// and transparent controls (labels, the disabled edit of the dates) keep their former text under
/// the new one unless the canvas behind them is drawn too.
void RedrawForm();

/// Shows a section's message line with `text`; an empty text hides it.
void SetSectionMessage(int section, const std::wstring& text);

}  // namespace tessaline

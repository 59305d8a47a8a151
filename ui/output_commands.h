// Print Preview and Print: what turns a draft into an issued estimate.
#pragma once

namespace tessaline {

/// Checks the form and makes it ready for a patient: a draft becomes issued and is saved, unless
/// it is the sample. A failed save does not stop the output. False, after telling the user why,
/// when the estimate may not go out.
bool PrepareOutput();

void PreviewCommand();
void PrintCommand();

}  // namespace tessaline

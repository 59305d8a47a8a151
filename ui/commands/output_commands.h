// Print Preview and Print: what turns a draft into an issued estimate.
#pragma once

namespace tessaline {

/// Checks the form and makes it ready for a patient: a draft becomes issued, and the estimate is
/// saved over its file, unless it is the sample. A failed save neither stops the output nor is
/// reported, and the form counts as saved, because the output itself can still be had. False,
/// after telling the user why, when the estimate may not be handed out.
bool PrepareOutput();

void PreviewCommand();
void PrintCommand();

}  // namespace tessaline

// The Save command and its automatic variant.
#pragma once

namespace tessaline {

/// Reads the form and saves the current estimate, as a new revision where an issued one was
/// edited. An incomplete estimate is saved as it stands. `quiet` shows no message box; `automatic`
/// changes the word on the status line. True when the file was written.
bool SaveCommand(bool quiet, bool automatic);

/// Saves quietly if there are changes and a patient's name or a primary service is filled in. A
/// failure is silent: the next tick tries again.
void AutoSave();

}  // namespace tessaline

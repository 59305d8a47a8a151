// Shows on the form what the rules find in it.
#pragma once

namespace tessaline {

/// Reads the form, marks every field whose rule fails and shows each section's first failure. The
/// rules for what must not be missing apply only `forOutput`, before a page is shown or printed.
/// True when nothing failed.
bool Validate(bool forOutput);

}  // namespace tessaline

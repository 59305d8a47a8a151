// The About box.
#pragma once

namespace tessaline {

/// Shows the box until the user closes it.
void ShowAbout();

}  // namespace tessaline

// Stories of what the user does in the program and sees there, told in files of tests/data, one
// thing a line:
//   press 1501                 in the main window, where numbers are control IDs
//     type 1 Visit             indented: meanwhile, in the modal window that this has opened
//     click OK
//     box ! Service: ... [OK]  a message box that this opens: icon, caption, text, buttons
//   total $10.00               to be seen afterwards
// The words are those of `kVerbs`.
#pragma once

#include <string>

namespace tessaline {

/// Plays every story of a file, each in a program of its own.
void PlayStories(const std::wstring& file);

}  // namespace tessaline

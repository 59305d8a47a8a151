// Stories of what the user does in the program and sees there, told in the files of
// tests/data/stories, one thing a line:
//   press 1501                 in the main window, where numbers are control IDs
//     type 1 Visit             indented: meanwhile, in the modal window that this has opened
//     click OK
//     box ! Service: ... [OK]  a message box that this opens: icon, caption, text, buttons
//   total $10.00               to be seen afterwards
// The words are those of `kVerbs`. A number at the beginning of a story's name is the screen's
// DPI.
#pragma once

namespace tessaline {

/// Makes every story a test case of its own, each played in a program of its own. The environment
/// may name another folder of stories (TESSALINE_STORIES) and one for their data
/// (TESSALINE_FOLDER).
void RegisterStories();

}  // namespace tessaline

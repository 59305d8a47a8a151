// Stories of what the user does in the program and sees there, told in the files of
// tests/data/stories, one thing a line:
//   press Add Item                  in the main window
//     type Service / item: Visit    indented: meanwhile, in the modal window that this has opened
//     press OK
//     box ! Service: ... [OK]       a message box that this opens: icon, caption, text, buttons
//   shows amount: $10.00            to be seen afterwards
// The verbs are those of `kVerbs` and `kVerbsOfWindows`. Windows and controls go by the record's
// fields, by the words on them or on the label before them, or by the names in `Find`. A number at
// the beginning of a story's name is the screen's DPI; "needs 1920 1080" as its first line skips
// it on a smaller screen.
#pragma once

namespace tessaline {

/// Makes every story a test case of its own, each played in a program of its own. The environment
/// may name another folder of stories (TESSALINE_STORIES) and one for their data
/// (TESSALINE_FOLDER).
void RegisterStories();

}  // namespace tessaline

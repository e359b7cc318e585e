// The window in which the user's guide is read.
#pragma once

class QString;
class QWidget;

namespace desktop_help {

// Shows `file`, an HTML text in UTF-8, in the one help window, or brings that window to the front.
// It doesn't block the program's other windows, and closes with the window that `owner` stands in.
// A file that can't be read is reported on the page, with its path and the reason.
void showHelp(QWidget* owner, const QString& file);

} // namespace desktop_help

#pragma once

class QPushButton;

/// What assistive tools see of a scene's controls. To the toolkit each is a window; to them all stand below
/// one object, the view, in the window that holds it.
namespace accessibletree {

/// To be called once, behind the construction of the application and before its first widget.
void install();

/// Makes the button one that opens a list, and tells whether the list is open.
void tellListOpen(QPushButton* button, bool open);

} // namespace accessibletree

#pragma once

#include "shell/language.h"

class Tour;

/// The first design of the manual and what else it shows, in the language: leaves the pictures, each under
/// its name and in twice the pixels if the platform has such, and the generated files in the tour's folder.
/// Works without a window manager and on a small screen.
void manualPictures(Tour& tour, LANGUAGE language);

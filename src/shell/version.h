#pragma once

/// The program's version as its users read it. The update check compares the same version as a number.
constexpr char versionText[] = "V3.0.17";

// Heights and insets that status-item pictures and in-menu graphs are laid out with.
#pragma once

namespace TvlClasses {

// Room around the elements of a picture, in points.
struct Insets {
    double top = 0;
    double spacing = 0; // between neighbouring elements
    double bottom = 0;
    double fourth = 0; // carried along, read by no picture
};

// The menu bar's height: platformHeight when the platform reports one above 0, else 20.
// Linux panels report none, so callers that know their panel's height pass it in.
float retRootMenuHeight(double platformHeight = 0);

// Insets of a status-item picture showing shownCount elements: (1, 4, 2, 0), with a
// spacing of 3 when exactly one element is shown.
Insets retStatusMenuInsets(int shownCount);

// Insets of graphs drawn inside a drop-down menu: (1, 0, 1, 0).
Insets retMenuPullDownInsets();

} // namespace TvlClasses

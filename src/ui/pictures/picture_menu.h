#pragma once

namespace tavimor {

class Picture;

/// Gives a picture its menu: Copy (Ctrl+C), Save as (Ctrl+S), Print (Ctrl+P) and the whole.
void addPictureMenu(Picture& picture);

}  // namespace tavimor

#pragma once

namespace tarvex {

class NativeForm;

// Gives a new window the size that its content needs, and no less.
void FitToContent(NativeForm& window);

// Puts a new window beside another, on the right where there is room, else on the left, else over the lower
// right of it as far as the screen allows, where no box stands.
void PlaceBeside(NativeForm& window, const NativeForm& anchor);

}  // namespace tarvex

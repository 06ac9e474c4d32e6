#include "ImageButton.h"

ImageButton::ImageButton(const InitArgs& args) : Button(args) { setImage(args.image, kNoRedraw); }

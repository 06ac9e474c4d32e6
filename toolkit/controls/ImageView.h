#pragma once

#include "glob/Glob.h"
#include "image/iImage.h"

/// Shows a picture fitted inside itself, proportions kept, on its window colour.
class ImageView : public Glob {
public:
    /// What an ImageView is made from: its size and the picture it shows.
    struct InitArgs : GlobCreationInfo {
        Zn::Ptr<iImage> image;
        InitArgs() = default;
        InitArgs(const Zn::Ptr<iImage>& image, unsigned short width, unsigned short height) : GlobCreationInfo(width, height), image(image) {}
    };

    explicit ImageView(const InitArgs& args) : Glob(args), image_(args.image) {}
    const char* idstring() const override { return "ImageView"; }

    void setImage(const Zn::Ptr<iImage>& image, eRedrawFlag flag = kRedraw);
    const Zn::Ptr<iImage>& getImage() const { return image_; }
    // Where the picture is drawn; empty with no picture.
    BoxInt imageArea() const;

    void drawBackground() override;

private:
    Zn::Ptr<iImage> image_;
};

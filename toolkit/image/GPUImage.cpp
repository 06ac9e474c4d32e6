#include "GPUImage.h"

#include "HostImage.h"

GPUImage::GPUImage(int width, int height) : pixels_(new HostImage(width, height)) {}

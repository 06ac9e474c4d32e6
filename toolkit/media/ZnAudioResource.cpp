#include "ZnAudioResource.h"

ZnAudioResource& ZnAudioResource::instance() {
    static ZnAudioResource resource;
    return resource;
}

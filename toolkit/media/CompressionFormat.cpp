#include "CompressionFormat.h"

#include "core/Utf8.h"
#include "value/DataConvert.h"

void CompressionFormat::setBitRate(double megabitsPerSecond) {
    settings.set(kBitRate, ConfigEntryT("double", toUTF8(DataConvert::toText(megabitsPerSecond))));
}

double CompressionFormat::getBitRate() const { return DataConvert::doubleFromText(fromUTF8(settings.get(kBitRate))); }

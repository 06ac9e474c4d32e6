#include "ValServer.h"

#include "core/ColourData.h"
#include "core/LightweightString.h"
#include "core/NormalisedRGB.h"

template class ValServer<bool>;
template class ValServer<int>;
template class ValServer<unsigned int>;
template class ValServer<double>;
template class ValServer<LightweightString<wchar_t>>;
template class ValServer<ColourData>;
template class ValServer<NormalisedRGB>;

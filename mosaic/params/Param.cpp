#include "Param.h"

namespace GenericParam {

template class Param<bool>;
template class Param<int>;
template class Param<unsigned int>;
template class Param<double>;
template class Param<LightweightString<wchar_t>>;
template class Param<NormalisedRGB>;

} // namespace GenericParam

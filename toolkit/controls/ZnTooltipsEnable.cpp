#include "ZnTooltipsEnable.h"

#include "TipWindowBase.h"

void ZnTooltipsEnable(bool enabled) { TipWindowBase::setTooltipsEnabled(enabled); }

#include "UpdateDeferrer.h"

#include "Drawable.h"

Glib::UpdateDeferrer::UpdateDeferrer() { Drawable::disableRedraws(); }

Glib::UpdateDeferrer::~UpdateDeferrer() { Drawable::enableRedraws(); }

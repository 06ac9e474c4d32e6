#pragma once

// Typed, named values that know how they are presented; see Param.h.
#include "ActionParam.h"
#include "BoolParam.h"
#include "ChoiceParam.h"
#include "ColourParam.h"
#include "DoubleParam.h"
#include "FileParam.h"
#include "FontParam.h"
#include "IntParam.h"
#include "LabelParam.h"
#include "TextParam.h"

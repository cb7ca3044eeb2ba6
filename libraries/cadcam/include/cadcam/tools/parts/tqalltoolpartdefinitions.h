// Every tool part role and the visitor over them.
#pragma once

#include "cadcam/tools/parts/tqarbordefinition.h"
#include "cadcam/tools/parts/tqcuttingpartdefinition.h"
#include "cadcam/tools/parts/tqholderdefinition.h"
#include "cadcam/tools/parts/tqnoncuttingpartdefinition.h"
#include "cadcam/tools/parts/tqtoolpartdefinitionvisitor.h"

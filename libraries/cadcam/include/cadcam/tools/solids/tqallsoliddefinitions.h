// Every solid definition and the visitor over them.
#pragma once

#include "cadcam/tools/solids/tqcontourturningsoliddefinition.h"
#include "cadcam/tools/solids/tqextrudedsoliddefinition.h"
#include "cadcam/tools/solids/tqmeshsoliddefinition.h"
#include "cadcam/tools/solids/tqrevolvedsoliddefinition.h"
#include "cadcam/tools/solids/tqsoliddefinitionvisitorgetter.h"
#include "cadcam/tools/solids/tqturningsoliddefinition.h"
#include "cadcam/tools/solids/tqwiresoliddefinition.h"

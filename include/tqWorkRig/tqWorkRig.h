// The umbrella header: every public class of namespaces tqWorkRig, misc, measures and cadcam.
#pragma once

#include "misc/export.h"
#include "misc/tqautopointer.h"
#include "misc/tqbinstream.h"
#include "misc/tqexception.h"
#include "misc/tqstring.h"
#include "misc/tqtypelist.h"

#include "measures/tqmeasurable.h"
#include "measures/tqmeasuresexception.h"
#include "measures/tqunitsfactory.h"

#include "cadcam/geometry/tqtmesh.h"
#include "cadcam/geometry/tqtpoint3d.h"

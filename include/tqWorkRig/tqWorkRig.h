// The umbrella header: every public class of namespaces tqWorkRig, misc, measures and cadcam.
#pragma once

// misc: strings, pointers, exceptions, streams
#include "misc/export.h"
#include "misc/tqautopointer.h"
#include "misc/tqbinstream.h"
#include "misc/tqexception.h"
#include "misc/tqstring.h"
#include "misc/tqtypelist.h"

// measures: unit systems
#include "measures/tqmeasurable.h"
#include "measures/tqmeasuresexception.h"
#include "measures/tqunitsfactory.h"

// cadcam: points, matrices, meshes and two-dimensional geometry
#include "cadcam/geometry/tqtmesh.h"
#include "cadcam/geometry/tqtpoint3d.h"

// cadcam: STL

// tqWorkRig: the model

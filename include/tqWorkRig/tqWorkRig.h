// The umbrella header: every public class of namespaces tqWorkRig, misc, measures and cadcam.
#pragma once

// misc: strings, pointers, exceptions, streams
#include "misc/export.h"
#include "misc/tqautopointer.h"
#include "misc/tqbinaryofstream.h"
#include "misc/tqbinstream.h"
#include "misc/tqbufferedbinaryifstream.h"
#include "misc/tqexception.h"
#include "misc/tqmemoryiostream.h"
#include "misc/tqstring.h"
#include "misc/tqtypelist.h"

// measures: unit systems
#include "measures/tqmeasurable.h"
#include "measures/tqmeasuresexception.h"
#include "measures/tqunitsfactory.h"

// cadcam: points, matrices, meshes and two-dimensional geometry
#include "cadcam/geometry/tq2darc.h"
#include "cadcam/geometry/tq2dcontour.h"
#include "cadcam/geometry/tq2dgeometry.h"
#include "cadcam/geometry/tq2dgeometryconstvisitor.h"
#include "cadcam/geometry/tq2dline.h"
#include "cadcam/geometry/tq2dpoint.h"
#include "cadcam/geometry/tq2dpolyline.h"
#include "cadcam/geometry/tqangle.h"
#include "cadcam/geometry/tqmathexception.h"
#include "cadcam/geometry/tqmatrix.h"
#include "cadcam/geometry/tqtmesh.h"
#include "cadcam/geometry/tqtpoint2d.h"
#include "cadcam/geometry/tqtpoint3d.h"

// cadcam: STL
#include "cadcam/stl/tqastlparser.h"
#include "cadcam/stl/tqtstltranslator.h"

// tqWorkRig: the model
#include "tqWorkRig/model/baseobject.h"
#include "tqWorkRig/model/box.h"
#include "tqWorkRig/model/cylinder.h"
#include "tqWorkRig/model/dockableobject.h"
#include "tqWorkRig/model/geometry.h"
#include "tqWorkRig/model/geometryvisitor.h"
#include "tqWorkRig/model/mesh.h"
#include "tqWorkRig/model/objectsversion.h"
#include "tqWorkRig/model/workrig.h"

// tqWorkRig: persistence
#include "tqWorkRig/persistence/workrigfilereader.h"
#include "tqWorkRig/persistence/workrigfilewriter.h"

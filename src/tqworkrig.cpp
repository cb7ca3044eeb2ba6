// The shared library's own translation unit; its content comes from the support libraries and the model.
#include "tqWorkRig/tqWorkRig.h"

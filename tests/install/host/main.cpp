// An outside host: touches each public namespace through the umbrella header alone.
#include <tqWorkRig/tqWorkRig.h>

#include <cstdio>

int main() {
    misc::tqstring name(u"outside host");
    cadcam::tqTMesh<double> mesh(measures::tqUnitsFactory::Metric);
    mesh.AddTriangle({0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {0, 0, 1});
    try {
        misc::tqAutoPointer<int> none;
        return *none;
    } catch (const misc::tqException& e) {
        if (misc::to_utf8(e.GetMessage()) != "Accessing TQ_NULL pointer") return 1;
    }
    std::printf("%s: %zu triangle\n", misc::to_utf8(name).c_str(), mesh.GetTriangleCount());
    return 0;
}

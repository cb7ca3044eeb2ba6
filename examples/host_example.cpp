// The example host: builds a work rig as a CAM host would and prints what it holds.
#include <minizip/unzip.h>
#include <tqWorkRig/tqWorkRig.h>

#include <cstdio>
#include <filesystem>
#include <string>
#include <utility>

using misc::tqAutoPointer;
using misc::tqstring;
using measures::tqUnitsFactory;

namespace {

std::string Utf8(const tqstring& text) { return misc::to_utf8(text); }

const char* UnitsName(tqUnitsFactory::Units units) { return units == tqUnitsFactory::Metric ? "metric" : "inch"; }

void PrintRig(const char* title, const tqWorkRig::WorkRig& rig) {
    std::printf("%s\n", title);
    std::printf("  name:        %s\n", Utf8(rig.GetDisplayName()).c_str());
    std::printf("  units:       %s\n", UnitsName(rig.GetUnits()));
    std::printf("  machine:     %s\n", Utf8(rig.GetMachineXMLFile()).c_str());
    std::printf("  NC program:  %s\n", Utf8(rig.GetNCFile()).c_str());
    for (const auto& [key, value] : *rig.GetAllAttributes())
        std::printf("  attribute:   %s = %s\n", Utf8(key).c_str(), Utf8(value).c_str());
}

void PrintColour(const tqWorkRig::Geometry& g) {
    std::printf("rgba(%u, %u, %u, %u)", g.Red(), g.Green(), g.Blue(), g.Alpha());
}

// Prints each geometry through the visitor, as a host's viewer would dispatch on the shape.
class GeometryPrinter : public tqWorkRig::GeometryVisitor {
public:
    void Visit(const tqWorkRig::Cylinder& c) override {
        std::printf("  cylinder %-12s diameter %.1f, length %.1f, axis (%g, %g, %g), ", Utf8(c.GetDisplayName()).c_str(),
                    c.GetDiameter(), c.GetLength(), c.GetAxis().x, c.GetAxis().y, c.GetAxis().z);
        PrintColour(c);
        std::printf("\n");
    }
    void Visit(const tqWorkRig::Box& b) override {
        const auto& lo = b.GetLowerCorner();
        const auto& hi = b.GetUpperCorner();
        std::printf("  box      %-12s (%g, %g, %g) to (%g, %g, %g), ", Utf8(b.GetDisplayName()).c_str(), lo.x, lo.y, lo.z,
                    hi.x, hi.y, hi.z);
        PrintColour(b);
        std::printf("\n");
    }
    void Visit(const tqWorkRig::Mesh& m) override {
        std::printf("  mesh     %-12s %zu triangles, ", Utf8(m.GetDisplayName()).c_str(),
                    m.GetMesh().IsNotNull() ? m.GetMesh()->GetTriangleCount() : std::size_t{0});
        PrintColour(m);
        std::printf("\n");
    }
    void Visit(const tqWorkRig::Geometry&) override { std::printf("  (unknown geometry)\n"); }
};

// A closed box of twelve triangles, as a host's stock model might arrive.
tqAutoPointer<cadcam::tqTMesh<double>> StockMesh() {
    using P = cadcam::tqTPoint3d<double>;
    tqAutoPointer<cadcam::tqTMesh<double>> mesh(new cadcam::tqTMesh<double>(tqUnitsFactory::Metric));
    const P c[8] = {{0, 0, 0}, {100, 0, 0}, {100, 60, 0}, {0, 60, 0},
                    {0, 0, 40}, {100, 0, 40}, {100, 60, 40}, {0, 60, 40}};
    const int faces[6][4] = {{0, 3, 2, 1}, {4, 5, 6, 7}, {0, 1, 5, 4}, {1, 2, 6, 5}, {2, 3, 7, 6}, {3, 0, 4, 7}};
    const P normals[6] = {{0, 0, -1}, {0, 0, 1}, {0, -1, 0}, {1, 0, 0}, {0, 1, 0}, {-1, 0, 0}};
    for (int f = 0; f < 6; ++f) {
        mesh->AddTriangle(c[faces[f][0]], c[faces[f][1]], c[faces[f][2]], normals[f]);
        mesh->AddTriangle(c[faces[f][0]], c[faces[f][2]], c[faces[f][3]], normals[f]);
    }
    return mesh;
}

// Lists an archive's members as any ZIP tool sees them: the document is a plain ZIP archive.
void PrintArchiveMembers(const std::string& path) {
    unzFile zip = unzOpen64(path.c_str());
    if (zip == nullptr) return;
    for (int status = unzGoToFirstFile(zip); status == UNZ_OK; status = unzGoToNextFile(zip)) {
        char name[257] = {};
        unz_file_info64 info;
        if (unzGetCurrentFileInfo64(zip, &info, name, sizeof name - 1, nullptr, 0, nullptr, 0) != UNZ_OK) break;
        std::printf("  %-20s %8llu bytes, %8llu stored\n", name, static_cast<unsigned long long>(info.uncompressed_size),
                    static_cast<unsigned long long>(info.compressed_size));
    }
    unzClose(zip);
}

}  // namespace

// A revolved solid from a polyline profile (X the radius, Y the height).
tqAutoPointer<cadcam::tqSolidDefinition<double>> RevolvedPolyline(std::initializer_list<cadcam::tqPoint2d> points) {
    cadcam::tq2dContour<double> profile;
    const cadcam::tqPoint2d* previous = nullptr;
    for (const auto& p : points) {
        if (previous != nullptr) {
            profile.Append(tqAutoPointer<cadcam::tq2dGeometry<double>>(new cadcam::tq2dLine<double>(*previous, p)));
        }
        previous = &p;
    }
    return tqAutoPointer<cadcam::tqSolidDefinition<double>>(
        new cadcam::tqRevolvedSolidDefinition<double>(tqUnitsFactory::Metric, profile));
}

void PrintRevolvedTool(const cadcam::tqTypedRevolvedTool& tool, const char* extra) {
    const auto& extender = tool.GetShoulderDefinitionExtender();
    std::printf("  %-22s %s: diameter %g, flute length %g, shoulder length %g, shank %g from %g%s\n",
                cadcam::tqToolFinder(tool).GetClassName(), UnitsName(tool.GetUnits()), tool.GetDiameter(),
                tool.GetFluteLength(), tool.GetShoulderLength(), extender.GetDiameter(), extender.GetLength(), extra);
}

// Catalogue tools are checked when they are built; a host reads them through getters and visitors.
void CatalogueTools() {
    using namespace cadcam;
    const tqTool::ArborPointer arbor(new tqArborDefinition<double>(
        tqUnitsFactory::Metric, RevolvedPolyline({{0, 0}, {12, 0}, {17, 30}, {17, 45}})));
    const tqTool::HolderPointer holder(new tqHolderDefinition<double>(
        tqUnitsFactory::Metric, RevolvedPolyline({{0, 0}, {25, 0}, {25, 15}, {32, 15}, {32, 35}, {22, 70}})));

    std::printf("\nCatalogue tools:\n");
    const tqEndMill endMill(tqUnitsFactory::Metric, arbor, holder, 10, 22, 35);
    PrintRevolvedTool(endMill, "");
    const tqBullMill bullMill(tqUnitsFactory::Metric, arbor, holder, 12, 25, 40, 2);
    char extra[64];
    std::snprintf(extra, sizeof extra, ", corner radius %g", bullMill.GetCornerRadius());
    PrintRevolvedTool(bullMill, extra);
    const tqDrill drill(tqUnitsFactory::Metric, arbor, holder, 8.5, 45, 60, 118);
    std::snprintf(extra, sizeof extra, ", tip angle %g", drill.GetTipAngle());
    PrintRevolvedTool(drill, extra);

    using Turning = tqTurningSolidDefinition<double>;
    const tqAutoPointer<tqSolidDefinition<double>> turningSolid(
        new Turning(tqUnitsFactory::Metric, 125, Turning::H_RIGHT, Turning::SK_RECTANGULAR, Turning::IN_TRIANGLE,
                    Turning::GENERIC_TYPE_A, 25, 25, 32, 32, 0, 0, 0, 0, 0));
    const tqTool::HolderPointer turningHolder(new tqHolderDefinition<double>(tqUnitsFactory::Metric, turningSolid));
    const tqTool::ArborPointer noArbor(new tqArborDefinition<double>(
        tqUnitsFactory::Metric,
        tqAutoPointer<tqSolidDefinition<double>>(new tqRevolvedSolidDefinition<double>(tqUnitsFactory::Metric))));
    const tqTriangleTurningTool insert(tqUnitsFactory::Metric, noArbor, turningHolder, 4.76, 0.8, 12.7);
    const Turning& held = tqTurningSolidDefinitionExtractor<double>::Extract(*insert.GetHolder()->GetSolid());
    std::printf("  %-22s %s: insert thickness %g, corner radius %g, inscribed circle %g; holder height %g, A %g, "
                "B %g, C %g, D %g\n",
                tqToolFinder(insert).GetClassName(), UnitsName(insert.GetUnits()), insert.GetInsertThickness(),
                insert.GetCornerRadius(), insert.GetInscribedCircleDiameter(), held.GetHeight(),
                held.GetParameter('A'), held.GetParameter('B'), held.GetParameter('C'), held.GetParameter('D'));

    // A change of units scales lengths and leaves angles; the tool it was copied from stays as it was.
    tqAutoPointer<tqTool> inchDrill = drill.Clone();
    inchDrill->SetUnits(tqUnitsFactory::Inch);
    const auto& converted = static_cast<const tqDrill&>(*inchDrill);
    std::snprintf(extra, sizeof extra, ", tip angle %g", converted.GetTipAngle());
    PrintRevolvedTool(converted, extra);
    std::printf("  the copy equals the drill: %s\n", inchDrill->IsEqual(drill) ? "yes" : "no");

    try {
        tqBullMill tooRound(tqUnitsFactory::Metric, arbor, holder, 6, 20, 30, 4);
    } catch (const tqcadcamException& e) {
        std::printf("  a bull mill with corner radius 4 on diameter 6 is refused: %d \"%s\"\n", e.GetCode(),
                    Utf8(e.GetMessage()).c_str());
    }
}

// ---- The machine set-up: stations, adapters, an assembled tool and a clamped stock, joined by the rig's table.

namespace machine {

using namespace tqWorkRig;

template <class T, class... Args>
tqAutoPointer<T> New(Args&&... args) {
    return tqAutoPointer<T>(new T(std::forward<Args>(args)...));
}
tqAutoPointer<DockingFramePlug> Plug(const char16_t* name) { return New<DockingFramePlug>(name); }
tqAutoPointer<DockingFrameSocket> Socket(const char16_t* name) { return New<DockingFrameSocket>(name); }

// A frame placed `z` millimetres up its parent's axis.
template <class Frame>
tqAutoPointer<Frame> At(tqAutoPointer<Frame> frame, double z) {
    frame->SetMatrix(DockingFrame::Matrix::Translation(0, 0, z));
    return frame;
}

// The spindle side: an HSK adapter and a D10 end mill in a shrink-fit holder with an extension arbor. The
// assembly knows its parts by its fields and by its own tree, holder plug down to tool plug.
void AddSpindle(WorkRig& rig, bool registerEveryFrame) {
    const tqAutoPointer<ToolMountStation> spindle = New<ToolMountStation>(u"S1", u"Spindle");
    rig.AddToolMountStation(spindle);

    const tqAutoPointer<ToolAdapter> adapter = New<ToolAdapter>(u"HSK-A63 adapter");
    adapter->SetAdapterGeometry(New<Cylinder>(cadcam::tqTPoint3d<double>(0, 0, 0), cadcam::tqTPoint3d<double>(0, 0, -1),
                                              63.0, 42.0, u"HSK body"));
    adapter->SetIsRotating(true);
    adapter->Add(Plug(u"spindle face"));
    adapter->Add(At(Socket(u"HSK taper"), -42));
    rig.AddToolAdapter(adapter);

    const cadcam::tqTool::ArborPointer arborDefinition(new cadcam::tqArborDefinition<double>(
        tqUnitsFactory::Metric, RevolvedPolyline({{0, 0}, {12, 0}, {17, 30}, {17, 45}})));
    const cadcam::tqTool::HolderPointer holderDefinition(new cadcam::tqHolderDefinition<double>(
        tqUnitsFactory::Metric, RevolvedPolyline({{0, 0}, {25, 0}, {25, 15}, {32, 15}, {32, 35}, {22, 70}})));
    const tqAutoPointer<Holder> holder = New<Holder>(u"Shrink-fit holder");
    holder->SetHolderDefinition(*holderDefinition);
    holder->SetPlug(Plug(u"holder taper"));
    holder->SetSocket(At(Socket(u"holder bore"), -70));
    const tqAutoPointer<Arbor> arbor = New<Arbor>(u"Extension arbor");
    arbor->SetArborDefinition(*arborDefinition);
    arbor->SetPlug(Plug(u"arbor shank"));
    arbor->SetSocket(At(Socket(u"arbor bore"), -45));
    const tqAutoPointer<Tool> tool = New<Tool>(u"End mill D10");
    tool->SetTool(tqAutoPointer<cadcam::tqTool>(
        new cadcam::tqEndMill(tqUnitsFactory::Metric, arborDefinition, holderDefinition, 10, 22, 35)));
    tool->SetPlug(Plug(u"end mill shank"));

    const tqAutoPointer<ToolAssembly> assembly = New<ToolAssembly>(u"T1 end mill D10");
    assembly->SetToolName(u"T1");
    assembly->SetPlug(Plug(u"assembly taper"));
    assembly->SetHolder(holder);
    assembly->SetArbor(arbor);
    assembly->SetTool(tool);
    assembly->GetTree()->SetInitialPlug(holder->GetPlug());
    assembly->GetTree()
        ->GetRoot()
        ->AddChild(holder->GetSocket(), arbor->GetPlug())
        ->AddChild(arbor->GetSocket(), tool->GetPlug());
    // Registers the holder, arbor and tool and the five frames of the assembly's tree.
    rig.AddToolAssembly(assembly);

    rig.AddDockingFrame((*adapter->GetPlugs())[0]);
    rig.AddDockingFrame((*adapter->GetSockets())[0]);
    if (registerEveryFrame) rig.AddDockingFrame(assembly->GetPlug());

    // The station's tree starts at the adapter's plug; the assembly's plug goes into the adapter's socket.
    const tqAutoPointer<ConnectorTree>& tree = rig.GetConnectorTable()->CreateNewTree(spindle, (*adapter->GetPlugs())[0]);
    tree->AddConnection(assembly->GetPlug(), (*adapter->GetSockets())[0]);
}

// The table side: a machine vise, and a blank from the host's CAD as a mesh, clamped in its jaws.
void AddTable(WorkRig& rig) {
    const tqAutoPointer<StockMountStation> table = New<StockMountStation>(u"TBL", u"Table");
    rig.AddStockMountStation(table);

    const tqAutoPointer<StockAdapter> vise = New<StockAdapter>(u"Machine vise");
    vise->SetFixtureGeometry(New<Box>(cadcam::tqTPoint3d<double>(-60, -40, 0), cadcam::tqTPoint3d<double>(60, 40, 80),
                                      u"Vise body"));
    vise->Add(Plug(u"vise base"));
    vise->Add(At(Socket(u"vise jaws"), 80));
    rig.AddStockAdapter(vise);

    const tqAutoPointer<Stock> blank = New<Stock>(u"Blank 100x60x40");
    blank->SetStockGeometry(New<Mesh>(StockMesh(), u"Blank mesh"));
    blank->Add(Plug(u"blank bottom"));
    rig.AddStock(blank);

    rig.AddDockingFrame((*vise->GetPlugs())[0]);
    rig.AddDockingFrame((*vise->GetSockets())[0]);
    rig.AddDockingFrame((*blank->GetPlugs())[0]);

    const tqAutoPointer<ConnectorTree>& tree = rig.GetConnectorTable()->CreateNewTree(table, (*vise->GetPlugs())[0]);
    tree->AddConnection((*blank->GetPlugs())[0], (*vise->GetSockets())[0]);
}

// The whole machine; with registerEveryFrame false, the assembly's own plug is left out of the frame list.
tqAutoPointer<WorkRig> Build(bool registerEveryFrame) {
    tqAutoPointer<WorkRig> rig(new WorkRig(tqUnitsFactory::Metric));
    rig->SetDisplayName(u"VMC-850 set-up");
    AddSpindle(*rig, registerEveryFrame);
    AddTable(*rig);
    rig->AddWorkOffset(New<WorkOffset>(DockingFrame::Matrix::Translation(-250, -120, -310), u"G54", u"Vise, jaw corner"));
    rig->AddWorkOffset(New<WorkOffset>(DockingFrame::Matrix::Translation(-250, -120, -350), u"G55", u"Vise, floor"));
    rig->AddMillingToolOffset(New<MillingToolOffset>(u"D1", 10.0, 118.5, u"T1 end mill D10"));
    rig->AddTurningToolOffset(New<TurningToolOffset>(u"T0101", 3, 0.4, u"OD roughing"));
    return rig;
}

// One line per level: plugs and sockets alternate, each with the object that carries it.
void PrintPlugNode(const PlugNode& node, int depth) {
    const DockingFramePlug& plug = *node.GetPlug();
    std::printf("  %*splug   %-16s on %s\n", 2 * depth, "", Utf8(plug.GetDisplayName()).c_str(),
                Utf8(plug.GetParent()->GetDisplayName()).c_str());
    for (const tqAutoPointer<SocketNode>& child : node.GetChildren()) {
        const DockingFrameSocket& socket = *child->GetSocket();
        std::printf("  %*ssocket %-16s on %s\n", 2 * depth + 2, "", Utf8(socket.GetDisplayName()).c_str(),
                    Utf8(socket.GetParent()->GetDisplayName()).c_str());
        if (child->GetChild().IsNotNull()) PrintPlugNode(*child->GetChild(), depth + 2);
    }
}

void PrintQueries(const WorkRig& rig, const MountStation& station, const ConnectorTree& tree) {
    const ConnectorTable& table = *rig.GetConnectorTable();
    if (station.GetStationType() == MountStation::StockStation) {
        for (const tqAutoPointer<Stock>& stock : *rig.GetAllStocks()) {
            // Each answer is a new list: hold it while walking it.
            const auto adapters = table.GetAllStockAdapters(stock, tree);
            for (const tqAutoPointer<StockAdapter>& adapter : *adapters)
                std::printf("  %s sits on %s\n", Utf8(stock->GetDisplayName()).c_str(),
                            Utf8(adapter->GetDisplayName()).c_str());
        }
        for (const tqAutoPointer<StockAdapter>& adapter : *rig.GetAllStockAdapters())
            std::printf("  %s holds %zu stock(s)\n", Utf8(adapter->GetDisplayName()).c_str(),
                        table.GetAllStocks(adapter, tree)->size());
    } else {
        for (const tqAutoPointer<ToolAdapter>& adapter : *rig.GetAllToolAdapters()) {
            const auto assemblies = table.GetAllToolAssemblies(adapter, tree);
            for (const tqAutoPointer<ToolAssembly>& assembly : *assemblies)
                std::printf("  %s hangs from %s\n", Utf8(assembly->GetDisplayName()).c_str(),
                            Utf8(adapter->GetDisplayName()).c_str());
        }
        for (const tqAutoPointer<ToolAssembly>& assembly : *rig.GetAllToolAssemblies()) {
            const tqAutoPointer<ToolAdapter> adapter = table.GetToolAdapter(assembly, tree);
            std::printf("  the tool adapter of %s: %s\n", Utf8(assembly->GetDisplayName()).c_str(),
                        adapter.IsNotNull() ? Utf8(adapter->GetDisplayName()).c_str() : "none");
        }
    }
}

void Show() {
    const tqAutoPointer<WorkRig> rig = Build(true);
    std::printf("\nMachine set-up \"%s\": %zu stations, %zu adapters, %zu stock(s), %zu assembly, %zu frames\n",
                Utf8(rig->GetDisplayName()).c_str(),
                rig->GetAllToolMountStations()->size() + rig->GetAllStockMountStations()->size(),
                rig->GetAllToolAdapters()->size() + rig->GetAllStockAdapters()->size(), rig->GetAllStocks()->size(),
                rig->GetAllToolAssemblies()->size(), rig->GetDockingFrames()->size());
    std::printf("  registered with the assembly: %s, %s, %s\n", Utf8(rig->GetAllHolders()[0]->GetDisplayName()).c_str(),
                Utf8(rig->GetAllArbors()[0]->GetDisplayName()).c_str(),
                Utf8(rig->GetAllTools()[0]->GetDisplayName()).c_str());
    for (const tqAutoPointer<WorkOffset>& offset : *rig->GetWorkOffsets()) {
        const cadcam::tqTPoint3d<double> origin = offset->GetMatrix().GetTranslation();
        std::printf("  work offset %s (%s) at (%g, %g, %g)\n", Utf8(offset->GetName()).c_str(),
                    Utf8(offset->GetDisplayName()).c_str(), origin.x, origin.y, origin.z);
    }
    const MillingToolOffset& milling = *(*rig->GetAllMillingToolOffsets())[0];
    std::printf("  milling offset %s: diameter %g, length %g\n", Utf8(milling.GetName()).c_str(),
                milling.GetDiameter(), milling.GetLength());
    const TurningToolOffset& turning = *(*rig->GetAllTurningToolOffsets())[0];
    std::printf("  turning offset %s: tip direction %d, tip radius %g\n", Utf8(turning.GetName()).c_str(),
                turning.GetToolTipDirection(), turning.GetToolTipRadius());

    // The table is sorted by station: tool stations first.
    for (const auto& [station, tree] : *rig->GetConnectorTable()) {
        std::printf("\n%s (%s station %s):\n", Utf8(station->GetDisplayName()).c_str(),
                    station->GetStationType() == MountStation::ToolStation ? "tool" : "stock",
                    Utf8(station->GetStationName()).c_str());
        PrintPlugNode(*tree->GetRoot(), 0);
        PrintQueries(*rig, *station, *tree);
    }
    const ToolAssembly& assembly = *(*rig->GetAllToolAssemblies())[0];
    std::printf("\nInside %s:\n", Utf8(assembly.GetDisplayName()).c_str());
    PrintPlugNode(*assembly.GetTree()->GetRoot(), 0);

    Validator(rig).ValidateWorkRig();
    std::printf("\nValidator: every frame of the set-up is registered\n");
    const tqAutoPointer<WorkRig> incomplete = Build(false);
    try {
        Validator(incomplete).ValidateWorkRig();
    } catch (const misc::tqException& e) {
        std::printf("Validator on a set-up with a frame left out: \"%s\"\n", Utf8(e.GetMessage()).c_str());
    }
}

}  // namespace machine

int main() {
    using namespace tqWorkRig;

    // A metric rig, named and described as the host's job list shows it.
    WorkRig rig(tqUnitsFactory::Metric);
    rig.SetDisplayName(u"Bracket 4711, OP10");
    rig.SetAttribute(u"Customer", u"Müller Feinmechanik");
    rig.SetAttribute(u"Operator", u"A. Smith");
    rig.SetMachineXMLFile(u"C:\\machines\\vmc-850.xml");
    rig.SetNCFile(u"C:\\jobs\\4711\\op10.nc");
    PrintRig("Work rig:", rig);

    // A copy shares the attribute map but keeps its own name and file names.
    WorkRig copy(rig);
    copy.SetDisplayName(u"Bracket 4711, OP10 (copy)");
    copy.SetAttribute(u"Revision", u"B");
    std::printf("\nCopy equals original: %s (names and attributes are not compared)\n", copy == rig ? "yes" : "no");
    std::printf("Original sees the copy's new attribute: Revision = %s\n",
                Utf8(rig.GetAttributeValue(u"Revision")).c_str());
    copy.SetNCFile(u"/jobs/4711/op20.nc");
    std::printf("After a new NC file on the copy, equal: %s\n", copy == rig ? "yes" : "no");

    // A change of units retags the rig; it scales nothing the rig holds.
    copy.SetUnits(tqUnitsFactory::Inch);
    std::printf("Copy changed to %s; equal to the metric original: %s\n", UnitsName(copy.GetUnits()),
                copy == rig ? "yes" : "no");

    // The shapes of a vise, a round stock and a meshed part, with their colours.
    Box vise({-60, -40, 0}, {60, 40, 80}, u"Vise");
    vise.SetRed(0.2f), vise.SetGreen(0.3f), vise.SetBlue(0.8f);
    Cylinder bar({0, 0, 0}, {0, 0, 1}, 50.0, 120.0, u"Bar stock");
    bar.Red(200), bar.Green(200), bar.Blue(210), bar.SetAlpha(0.5f);
    Mesh part(StockMesh(), u"Blank");
    part.Green(160);

    std::printf("\nGeometries:\n");
    GeometryPrinter printer;
    const Geometry* shapes[] = {&vise, &bar, &part};
    for (const Geometry* g : shapes) g->AcceptVisitor(printer);

    // The mesh goes out as binary STL and comes back.
    const std::string stlFile = (std::filesystem::temp_directory_path() / "host_example_blank.stl").string();
    const tqstring stlPath(stlFile.c_str());
    cadcam::tqTSTLTranslator<double> translator;
    cadcam::tqTSTLTranslator<double>::WriteSTLFile(*part.GetMesh(), stlPath);
    cadcam::tqTMesh<double> readBack(tqUnitsFactory::Metric);
    translator.ReadSTLFile(stlPath, readBack);
    std::remove(stlFile.c_str());
    std::printf("\nSTL written and read back: %zu triangles, equal to the original mesh: %s\n",
                readBack.GetTriangleCount(), readBack == *part.GetMesh() ? "yes" : "no");

    // The rig goes out as a document archive and comes back; only what the rig held at the writer's
    // construction is saved.
    const std::filesystem::path folder = std::filesystem::temp_directory_path() / "host_example_rig";
    const std::string rigFile = (folder / "bracket_4711_op10.wr").string();
    tqAutoPointer<WorkRig> toSave(new WorkRig(rig));
    WorkRigFileWriter writer(toSave, WorkRigFileWriter::Version2);
    writer.WriteToFile(tqstring(rigFile.c_str()), WorkRigFileWriter::Best);
    WorkRigFileReader reader(tqstring(rigFile.c_str()));
    const WorkRig& loaded = *reader.GetWorkRig();
    std::printf("\nSaved to %s and loaded back, equal: %s\n", rigFile.c_str(), loaded == *toSave ? "yes" : "no");
    PrintRig("Loaded work rig:", loaded);
    std::printf("Archive members:\n");
    PrintArchiveMembers(rigFile);
    std::filesystem::remove_all(folder);

    CatalogueTools();
    machine::Show();

    // Misuse ends in the library's exceptions, with their codes and texts.
    try {
        WorkRig broken(static_cast<tqUnitsFactory::Units>(3));
    } catch (const misc::tqException& e) {
        std::printf("\nLibrary failure caught: code %d, \"%s\"\n", e.GetCode(), Utf8(e.GetMessage()).c_str());
    }
    try {
        Mesh empty(u"No mesh yet");
        std::printf("%zu\n", empty.GetMesh()->GetTriangleCount());
    } catch (const misc::tqException& e) {
        std::printf("Library failure caught: code %d, \"%s\"\n", e.GetCode(), Utf8(e.GetMessage()).c_str());
    }
    return 0;
}

// The element and attribute names of "WorkRig.xml", and the fixed texts that stand in its values.
#pragma once

namespace tqWorkRig {
namespace xml {

// The declaration.
constexpr char kXMLVersion[] = "1.0";
constexpr char kUTF8[] = "UTF-8";
constexpr char kUTF8Short[] = "UTF8";

// The root and its sections, in the order the writer puts them.
constexpr char kWorkRig[] = "WorkRig";
constexpr char kAttribute[] = "Attribute";
constexpr char kDockingFrames[] = "DockingFrames";
constexpr char kStockMountStations[] = "StockMountStations";
constexpr char kToolMountStations[] = "ToolMountStations";
constexpr char kConnectorTable[] = "ConnectorTable";
constexpr char kStockAdapters[] = "StockAdapters";
constexpr char kStocks[] = "Stocks";
constexpr char kToolAdapters[] = "ToolAdapters";
constexpr char kArbors[] = "Arbors";
constexpr char kHolders[] = "Holders";
constexpr char kTools[] = "Tools";
constexpr char kToolAssemblies[] = "ToolAssemblies";
constexpr char kWorkOffsets[] = "WorkOffsets";
constexpr char kMachineXMLFile[] = "MachineXMLFile";
constexpr char kNCFile[] = "NCFile";
constexpr char kTurningToolOffsets[] = "TurningToolOffsets";
constexpr char kMillingToolOffsets[] = "MillingToolOffsets";

// The entries of the sections.
constexpr char kDockingFramePlug[] = "DockingFramePlug";
constexpr char kDockingFrameSocket[] = "DockingFrameSocket";
constexpr char kStockMountStation[] = "StockMountStation";
constexpr char kToolMountStation[] = "ToolMountStation";
constexpr char kStockAdapter[] = "StockAdapter";
constexpr char kStock[] = "Stock";
constexpr char kToolAdapter[] = "ToolAdapter";
constexpr char kArbor[] = "Arbor";
constexpr char kHolder[] = "Holder";
constexpr char kTool[] = "Tool";
constexpr char kToolAssembly[] = "ToolAssembly";
constexpr char kWorkOffset[] = "WorkOffset";
constexpr char kTurningToolOffset[] = "TurningToolOffset";
constexpr char kMillingToolOffset[] = "MillingToolOffset";

// Child elements inside entries.
constexpr char kMatrix4x4[] = "Matrix4x4";
constexpr char kPlugs[] = "Plugs";
constexpr char kPlug[] = "Plug";
constexpr char kSockets[] = "Sockets";
constexpr char kSocket[] = "Socket";
constexpr char kFixtureGeometry[] = "FixtureGeometry";
constexpr char kPartGeometry[] = "PartGeometry";
constexpr char kStockGeometry[] = "StockGeometry";
constexpr char kAdapterGeometry[] = "AdapterGeometry";
constexpr char kAlternativeModel[] = "AlternativeModel";
constexpr char kAlternativeModelPlug[] = "AlternativeModelPlug";
constexpr char kBox[] = "Box";
constexpr char kCylinder[] = "Cylinder";
constexpr char kMesh[] = "Mesh";
constexpr char kHolderTransformation[] = "HolderTransformation";
constexpr char kArborTransformation[] = "ArborTransformation";
constexpr char kConnectorTree[] = "ConnectorTree";
constexpr char kPlugNode[] = "PlugNode";
constexpr char kSocketNode[] = "SocketNode";

// Attributes common to objects, and those of the root and of "Attribute".
constexpr char kVersion[] = "version";
constexpr char kUniqueID[] = "uniqueID";
constexpr char kDisplayName[] = "displayName";
constexpr char kUnits[] = "units";
constexpr char kKey[] = "key";
constexpr char kValue[] = "value";
constexpr char kFile[] = "file";
constexpr char kMatrix[] = "matrix";

// Attributes of geometries.
constexpr char kType[] = "type";
constexpr char kRed[] = "red";
constexpr char kGreen[] = "green";
constexpr char kBlue[] = "blue";
constexpr char kAlpha[] = "alpha";
constexpr char kFirstCorner[] = "firstCorner";
constexpr char kSecondCorner[] = "secondCorner";
constexpr char kStartPoint[] = "startPoint";
constexpr char kAxis[] = "axis";
constexpr char kGeometryDiameter[] = "diameter";
constexpr char kGeometryLength[] = "length";
constexpr char kStlFile[] = "stlFile";

// Attributes of stations, adapters and offsets.
constexpr char kStationName[] = "stationName";
constexpr char kIsRotating[] = "IsRotating";
constexpr char kName[] = "Name";
constexpr char kToolTipDirection[] = "ToolTipDirection";
constexpr char kToolTipRadius[] = "ToolTipRadius";
constexpr char kToolTipOffset[] = "ToolTipOffset";
constexpr char kOffsetDiameter[] = "Diameter";
constexpr char kOffsetLength[] = "Length";

// Attributes of arbors, holders, tools and assemblies.
constexpr char kSolidType[] = "solid_type";
constexpr char kToolName[] = "ToolName";
constexpr char kArborID[] = "ArborID";
constexpr char kHolderID[] = "HolderID";
constexpr char kToolID[] = "ToolID";

// Attributes of connector trees and their nodes.
constexpr char kMountStationID[] = "MountStationID";
constexpr char kPlugID[] = "PlugID";
constexpr char kSocketID[] = "SocketID";

// Values: the kinds of a flat geometry's "type", and the two truth values.
constexpr char kTypeBox[] = "box";
constexpr char kTypeCylinder[] = "cylinder";
constexpr char kTypeMesh[] = "mesh";
constexpr char kTrue[] = "true";
constexpr char kFalse[] = "false";

// Values: the prefixes of "uniqueID" texts, each followed by a running number from 1.
constexpr char kIDDockingFramePlug[] = "WRDockingFramePlug";
constexpr char kIDDockingFrameSocket[] = "WRDockingFrameSocket";
constexpr char kIDStockMountStation[] = "WRStockMountStation";
constexpr char kIDToolMountStation[] = "WRToolMountStation";
constexpr char kIDStockAdapter[] = "WRStockAdapter";
constexpr char kIDStock[] = "WRStock";
constexpr char kIDToolAdapter[] = "WRToolAdapter";
constexpr char kIDWorkOffset[] = "WRWorkOffset";
constexpr char kIDTurningToolOffset[] = "WRTurningToolOffset";
constexpr char kIDMillingToolOffset[] = "WRMillingToolOffset";
constexpr char kIDFixtureGeometry[] = "WRFixtureGeometry";
constexpr char kIDPartGeometry[] = "WRPartGeometry";
constexpr char kIDStockGeometry[] = "WRStockGeometry";

// Values: the member names of meshes, "Meshes/Mesh_<n>.stl".
constexpr char kMeshFolder[] = "Meshes";
constexpr char kMeshFilePrefix[] = "Mesh_";
constexpr char kMeshFileExtension[] = ".stl";

}  // namespace xml
}  // namespace tqWorkRig

// Control ids of the dialogs and pages. Each id stands for one control of the whole module, so that
// a control can be named by its id while a page is shown inside the design dialog.
#pragma once

namespace lx::id {

// Lintel erase dialog
inline constexpr int eraseGroup = 1010;
inline constexpr int eraseLintel = 1011;
inline constexpr int eraseSection = 1012;
inline constexpr int eraseBubble = 1013;
inline constexpr int eraseDescription = 1014;

// Design dialog
inline constexpr int tabs = 1020;
inline constexpr int sectionPreview = 1021;
inline constexpr int inPlaceBox = 1022;  // the in-place drop-down of both previews
inline constexpr int propertiesLabel = 1023;
inline constexpr int properties = 1024;
inline constexpr int fromPreview = 1025;
inline constexpr int fromOffer = 1026;
inline constexpr int moduleIcon = 1027;

// Command menu of the design dialog
inline constexpr int commandCompose = 1040;
inline constexpr int commandBends = 1041;   // none to 5 bends, ids in a row
inline constexpr int commandBrowse = 1047;  // the catalogue browser
inline constexpr int commandBrowseToAdd = 1048;
inline constexpr int commandRemove = 1049;
inline constexpr int commandInsulation = 1050;

// Page "Geometrie"
inline constexpr int planPreview = 1100;
inline constexpr int bendNone = 1101;  // six buttons, ids in a row
inline constexpr int bend1 = 1102;
inline constexpr int bend2 = 1103;
inline constexpr int bend3 = 1104;
inline constexpr int bend4 = 1105;
inline constexpr int bend5 = 1106;
inline constexpr int descriptionLabel = 1107;
inline constexpr int description = 1108;
inline constexpr int bubbleLabel = 1109;
inline constexpr int bubbleName = 1110;
inline constexpr int insertGroup = 1111;
inline constexpr int insertBubble = 1112;
inline constexpr int insertDescription = 1113;
inline constexpr int insertFoldedSection = 1114;
inline constexpr int insertDiagonals = 1115;
inline constexpr int annotationSettings = 1116;

// Page "Prefa překlady"
inline constexpr int precastCompose = 1200;
inline constexpr int precastTypeLabel = 1201;
inline constexpr int precastType = 1202;
inline constexpr int precastOffer = 1203;
inline constexpr int precastAdd = 1204;
inline constexpr int precastRemove = 1205;
inline constexpr int precastInsulation = 1206;
inline constexpr int precastSpace = 1207;
inline constexpr int precastCatalogue = 1208;

// Page "Ocelové překlady"
inline constexpr int steelCompose = 1300;
inline constexpr int steelTypeLabel = 1301;
inline constexpr int steelType = 1302;
inline constexpr int steelOffer = 1303;
inline constexpr int steelAdd = 1304;
inline constexpr int steelRemove = 1305;
inline constexpr int steelInsulation = 1306;
inline constexpr int steelSpace = 1307;
inline constexpr int steelCatalogue = 1308;

// Page "Monolitické překlady"
inline constexpr int monolithAdd = 1400;
inline constexpr int monolithRemove = 1401;
inline constexpr int monolithInsulation = 1402;

// Page "Knihovna"
inline constexpr int projectLabel = 1500;
inline constexpr int projects = 1501;
inline constexpr int newProject = 1502;
inline constexpr int storedLabel = 1503;
inline constexpr int makeDefault = 1504;
inline constexpr int storedDesigns = 1505;
inline constexpr int checkBearing = 1506;

}  // namespace lx::id

// Control ids of the dialogs and pages. Each id stands for one control of the whole module, so that
// a control can be named by its id while a page is shown inside the design dialog.
#pragma once

namespace lx::id {

// Chooser of the catalogue; its buttons end it with their ids
inline constexpr int choosePrecast = 1000;
inline constexpr int chooseSteel = 1001;

// Lintel erase dialog
inline constexpr int eraseGroup = 1010;
inline constexpr int eraseLintel = 1011;
inline constexpr int eraseSection = 1012;
inline constexpr int eraseBubble = 1013;
inline constexpr int eraseDescription = 1014;

// Name dialog
inline constexpr int nameLabel = 1016;
inline constexpr int name = 1017;

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

// Annotation settings
inline constexpr int bubbleGroup = 1600;
inline constexpr int bubbleHeightLabel = 1601;
inline constexpr int bubbleHeight = 1602;
inline constexpr int auxiliaryLine = 1603;
inline constexpr int lineLengthLabel = 1604;
inline constexpr int lineLength = 1605;
inline constexpr int textStyleLabel = 1606;
inline constexpr int textStyle = 1607;
inline constexpr int bubbleColorLabel = 1608;
inline constexpr int bubbleColor = 1609;
inline constexpr int bubbleWidthLabel = 1610;
inline constexpr int bubbleWidthFactor = 1611;
inline constexpr int diameterLabel = 1612;
inline constexpr int diameter = 1613;
inline constexpr int hasEdges = 1614;
inline constexpr int edges = 1615;
inline constexpr int turningGroup = 1616;
inline constexpr int followsOpening = 1617;
inline constexpr int angleLabel = 1618;
inline constexpr int angle = 1619;
inline constexpr int descriptionGroup = 1620;
inline constexpr int descriptionColorLabel = 1621;
inline constexpr int descriptionColor = 1622;
inline constexpr int descriptionHeightLabel = 1623;
inline constexpr int descriptionHeight = 1624;
inline constexpr int descriptionWidthLabel = 1625;
inline constexpr int descriptionWidthFactor = 1626;

// Catalogue browser
inline constexpr int types = 1700;
inline constexpr int items = 1701;
inline constexpr int browserIcon = 1702;
inline constexpr int pickItems = 2011;

// Commands of the browser's menu bar and popup menus
inline constexpr int renameType = 2061;
inline constexpr int deleteType = 2062;
inline constexpr int newType = 32772;
inline constexpr int newItem = 32773;
inline constexpr int newItemInList = 32774;  // the same, from the item list's popup menu
inline constexpr int editItem = 32775;
inline constexpr int deleteItem = 32776;

// Item editor
inline constexpr int itemDesignationLabel = 1720;
inline constexpr int itemDesignation = 1721;
inline constexpr int itemLengthLabel = 1722;
inline constexpr int itemLength = 1723;
inline constexpr int itemWidthLabel = 1724;
inline constexpr int itemWidth = 1725;
inline constexpr int itemHeightLabel = 1726;
inline constexpr int itemHeight = 1727;
inline constexpr int itemMaxOpeningLabel = 1728;
inline constexpr int itemMaxOpening = 1729;
inline constexpr int itemWeightLabel = 1730;
inline constexpr int itemWeight = 1731;
inline constexpr int itemQuLabel = 1732;
inline constexpr int itemQu = 1733;
inline constexpr int itemDescriptionLabel = 1734;
inline constexpr int itemDescription = 1735;
inline constexpr int itemMarkLabel = 1736;
inline constexpr int itemMark = 1737;

// Section type dialog
inline constexpr int sectionNameLabel = 1750;
inline constexpr int sectionName = 1751;
inline constexpr int firstShape = 1752;  // fourteen buttons, ids in a row
inline constexpr int sectionIcon = 1766;

}  // namespace lx::id

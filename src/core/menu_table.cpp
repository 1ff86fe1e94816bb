#include "core/menu_table.hpp"

#include <array>

namespace qor {
namespace {

constexpr std::array report_tools{
    MenuTool{u"&Cell Color", u"UTCelCol", u"CELCOL"},
    MenuTool{u"Cell &Information", u"UTCelInf", u"CELINF"},
    MenuTool{u"&Date Review", u"UTDatRev", u"DATREV"},
    MenuTool{u"&Workbook Summary", u"UTWokSum", u"WOKSUM", true},
    MenuTool{u"Worksheet &Summary", u"UTWorSum", u"WORSUM"},
};

constexpr std::array workbook_tools{
    MenuTool{u"&Workbook Groups", u"UTWokGro", u"WORGRO"},
    MenuTool{u"&Print Groups", u"UTPriGro", u"PRIGRO"},
    MenuTool{u"&New File - Alternate Template", u"UTAltTem", u"ALTTEM", true},
    MenuTool{u"&Add Worksheets", u"UTAddWor", u"ADDWOR", true},
    MenuTool{u"&Delete Empty Worksheets", u"UTDelEmpWor", u"DELEMPWOR"},
    MenuTool{u"Window &Hide and Unhide", u"UTWinHidUnh", u"WINHIDUNH"},
    MenuTool{u"&Close All", u"UTCloAll", u"CLOALL", true},
    MenuTool{u"S&ave All", u"UTSavAll", u"SAVALL"},
    MenuTool{u"P&rint All", u"UTPriAll", u"PRIALL"},
    MenuTool{u"Clear &Recent Files", u"UTCleRecFil", u"CLERECFIL", true},
    MenuTool{u"Sp&ell Check All", u"UTSpeCheAll", u"SPECHEALL"},
    MenuTool{u"S&ort Worksheets", u"UTSorWor", u"SORWOR"},
    MenuTool{u"Na&vigate", u"UTNav", u"NAV"},
};

constexpr std::array worksheet_tools{
    MenuTool{u"&Column Width or Row Height Adjustment", u"UTColWidRowHeiAdj", u"COLWIDROWHEIADJ"},
    MenuTool{u"&Column or Row Shading", u"UTColRowSha", u"COLROWSHA", false, u"Column or Row Shading"},
    MenuTool{u"Insert Quick Column", u"UTInsSinCol", u"INSSINCOL", true},
    MenuTool{u"Insert Quick Row", u"UTInsSinRow", u"INSSINROW"},
    MenuTool{u"&Column or Row Insertion", u"UTColRowIns", u"COLROWINS", false, u"Column or Row Insertion"},
    MenuTool{u"&Delete Empty Columns or Rows", u"UTDelDupEmpColRow", u"DELDUPEMPCOLROW"},
    MenuTool{u"&Cell Selector", u"UTCelSel", u"CELSEL", true, u"Cell Selector"},
    MenuTool{u"&Cell Tools", u"UTCelToo", u"CELTOO"},
    MenuTool{u"Create Nth Worksheet Copies", u"UTCreNthWorCop", u"CRENTHWORCOP"},
    MenuTool{u"Cell and Worksheet Protection", u"UTCELWORPRO", u"CELWORPRO"},
    MenuTool{u"Export Range to File", u"UTExpRanFil", u"EXPRANFIL"},
    MenuTool{u"Link Locator", u"UTLINLOC", u"LINLOC", false, {}, u"UTLinLoc"},
    MenuTool{u"&Paste Exact Formula", u"UTPasExaFor", u"PASEXAFOR"},
    MenuTool{u"Transpose Columns and Rows", u"UTraColRow", u"TRACOLROW", false, {}, u"UTTraColRow"},
    MenuTool{u"Clear Scroll Area", u"UTCleScrAre", u"CLESCRARE", true},
    MenuTool{u"Set Scroll Area", u"UTSetScrAre", u"SETSCRARE"},
    MenuTool{u"&Worksheet Hide and Unhide", u"UTWorHidUnh", u"WORHIDUNH", true},
    MenuTool{u"&Insert Date and Time", u"UTInsDatTim", u"INSDATTIM"},
    MenuTool{u"&Cell Events", u"UTCelEve", u"CELEVE"},
};

constexpr std::array groups{
    MenuGroup{u"&Reports", true, {u"TBReport", u" - Report Manager", 139, 137}, report_tools},
    MenuGroup{u"&Workbooks", false, {u"TBWorkbook", u" - Workbook Manager", 203, 316}, workbook_tools},
    MenuGroup{u"Wor&ksheets", false, {u"TBWorksheet", u" - Worksheet Manager", 268, 391}, worksheet_tools},
};

constexpr std::array last_entries{
    ClosingEntry{u"&Options...", u"UTOpt", {}, true},
    ClosingEntry{u"&Contents and Index", u"QOpenHelp", u"HELP", true},
    ClosingEntry{u"L&umenrock on the Web", {}, {}},
    ClosingEntry{u"Send Author &Email", u"UTSendEmail", u"SENDEMAIL", false, true},
    ClosingEntry{u"&Online &Support", u"UTOnlineSupport", u"WEBURL", false, true},
    ClosingEntry{u"&Home Page", u"UTHomePage", u"WEBURL", true, true},
    ClosingEntry{u"&About QOR Plus", u"QAbout", {}, true},
};

}  // namespace

std::span<const MenuGroup> menu_groups() {
    return groups;
}

std::span<const ClosingEntry> closing_entries() {
    return last_entries;
}

}  // namespace qor

#include "functions/registration_order.hpp"

#include <array>

namespace qor {
namespace {

constexpr auto financial = std::to_array<std::u16string_view>(
    {u"APT",    u"ARR",     u"ARA",         u"ARE",         u"ARNS",       u"ART",       u"ADC",     u"AFFO",
     u"AVFO",   u"AGNS",    u"AMBFIPRIVOM", u"AMBFIPRIVON", u"AMBFIPUBOM", u"AT",        u"AARR",    u"BDAR",
     u"BDNS",   u"BCI",     u"BSI",         u"BVPS",        u"BEPD",       u"BEPU",      u"BI",      u"CCC",
     u"CFI",    u"CFPS",    u"CAGR",        u"CCR",         u"CM",         u"CMR",       u"CCS",     u"CACL",
     u"CALICL", u"CLE",     u"CLNS",        u"DAP",         u"DAR",        u"DI",        u"DWCap",   u"DCA",
     u"DCE",    u"DCNS",    u"DCL",         u"DFL",         u"DOL",        u"DNS",       u"DLMV",    u"DLYV",
     u"DMMV",   u"DMYV",    u"DP",          u"DPS",         u"DY",         u"EPS",       u"EBITDA",  u"EOQ",
     u"EOQHC",  u"EOQHCPU", u"EOQNO",       u"EOQOC",       u"EOQRC",      u"EOQRP",     u"EAIR",    u"EA",
     u"EM",     u"CAPM",    u"FFOCV",       u"FFOR",        u"FFOSV",      u"FFOVV",     u"FBR",     u"GPM",
     u"GR",     u"GROA",    u"GROE",        u"HPR",         u"IC",         u"IENS",      u"IA",      u"IE",
     u"INS",    u"IT",      u"LCV",         u"LSV",         u"LVV",        u"LR",        u"LA",      u"LE",
     u"LTNS",   u"MM",      u"MRKTCAP",     u"MNS",         u"MS",         u"MRKTSHRV",  u"MRKTSZV", u"MCV",
     u"MSV",    u"MVV",     u"NFAA",        u"NFAE",        u"NFALTL",     u"NFANS",     u"NFAT",    u"NIAA",
     u"NIAE",   u"NIANS",   u"NPM",         u"NSNE",        u"NSPS",       u"NW",        u"NIR",     u"NDC",
     u"NFFO",   u"NVFO",    u"NPNC",        u"OLI",         u"OSNS",       u"OCFA",      u"OCFCL",   u"OCFEBIT",
     u"OCFE",   u"OCFLL",   u"OCFNI",       u"OCFNS",       u"OCFNE",      u"OAA",       u"OAE",     u"OANS",
     u"PP",     u"PERP",    u"PVGA",        u"PVGP",        u"PB",         u"PCF",       u"PE",      u"PNS",
     u"RIR",    u"RNTLNS",  u"RPRNFA",      u"RPRNS",       u"RDNS",       u"RETENTION", u"ROA",     u"ROCC",
     u"REA",    u"ROE",     u"ROI",         u"ROM",         u"ROSS",       u"ROWarrant", u"SBNS",    u"SCV",
     u"SPV",    u"SVV",     u"SHARPE",      u"SDC",         u"SFFO",       u"SVFO",      u"OTCBB",   u"OTCBMO",
     u"TEY",    u"TCR",     u"TRNGNS",      u"VOC",         u"VOP",        u"VOSR",      u"VOW",     u"VFOCV",
     u"VFOR",   u"VFOSV",   u"VFOVV",       u"WRNTYNS",     u"WCapital"});

constexpr auto human_resources = std::to_array<std::u16string_view>({u"HRA", u"HRCPH", u"HRPM", u"HRR"});

constexpr auto dates = std::to_array<std::u16string_view>(
    {u"EDATEADD", u"EDATEDIFF", u"EDATEPART", u"EDAY", u"EDAYSINMONTH", u"EEOMONTH", u"EEOWEEK", u"EFOMONTH",
     u"EFOWEEK", u"EMONTH", u"EMONTHNAME", u"EWEEKDAY", u"EWEEKDAYNAME", u"EWORDDAY", u"EYEAR"});

constexpr auto text = std::to_array<std::u16string_view>({u"FORMATNAME", u"NUMBERTOWORDS", u"ORDINAL"});

constexpr auto logical =
    std::to_array<std::u16string_view>({u"BETWEEN", u"CONTAINS", u"ISDATE", u"ISLEAPYEAR", u"ISLIKE", u"ISTIME"});

constexpr auto information = std::to_array<std::u16string_view>(
    {u"CELLINFO", u"DRIVEINFO", u"EXCELUSERNAME", u"SYSINFO", u"WRKBKINFO", u"WRKSHTINFO"});

constexpr std::array runs{
    RegistrationRun{Category::financial, financial}, RegistrationRun{Category::financial, human_resources},
    RegistrationRun{Category::date_and_time, dates}, RegistrationRun{Category::text, text},
    RegistrationRun{Category::logical, logical},     RegistrationRun{Category::information, information},
};

}  // namespace

std::span<const RegistrationRun> registration_runs() noexcept {
    return runs;
}

}  // namespace qor

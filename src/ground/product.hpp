#pragma once

#include <cstdint>
#include <string_view>

#include "platform/user_folders.hpp"

// The facts of this build, as QTitle, QCompany, QMajor and QMinor tell them and the About box shows them.
namespace qor::product {

inline constexpr std::u16string_view title = u"QOR Plus";
inline constexpr std::u16string_view company = u"Ombrel";
inline constexpr std::int32_t major_version = 2;
inline constexpr std::int32_t minor_version = 6;
inline constexpr std::int32_t revision = 5;

inline constexpr std::u16string_view legal_notice =
    u"Copyright (c) 2026 The QOR Plus developers. This program is free software under the MIT licence: you may use, "
    u"copy, change and pass it on as long as this notice goes with it. It comes as it is, without warranty of any "
    u"kind, and its authors are "
    u"not liable for what comes of its use.";

// Major and minor: each pair has settings of its own.
inline constexpr std::u16string_view version = u"2.6";

inline constexpr ProductName name{company, title, version};
inline constexpr std::string_view settings_file = "settings.ini";  // in the settings folder

// Where users find the makers.
inline constexpr std::u16string_view home_page = u"https://www.qorplus.example/";
inline constexpr std::u16string_view support_page = u"https://www.qorplus.example/support";
inline constexpr std::u16string_view author_mail = u"author@qorplus.example";

}  // namespace qor::product

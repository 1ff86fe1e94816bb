#pragma once

#include <string>
#include <vector>

#include "automation/variant.hpp"

namespace qor::test {

enum class Language : std::uint8_t { visual_basic, java };

struct NamedItem {
    std::u16string name;
    Object object;
};

// Runs a script with the objects under their names. Answers what the engine reports, with the line; empty if nothing.
std::string run_script(Language language, std::u16string_view text, const std::vector<NamedItem>& items);

}  // namespace qor::test

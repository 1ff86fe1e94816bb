#pragma once

#include <nlohmann/json.hpp>
#include <string>

namespace qor::cli {

// The values that the transcript's reads hold, as tables for a person: columns line up, numbers stand to the right.
std::string transcript_tables(const nlohmann::json& transcript);

}  // namespace qor::cli

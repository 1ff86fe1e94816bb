#pragma once

#include <string>
#include <vector>

#include "hosts/calc/adapter/ground/range_areas.hpp"
#include "hosts/calc/uno/property.hpp"

namespace qor::calc {

// The texts in a range that consist of parts: paragraphs, characters with looks of their own, fields such as links.
class RichTexts {
  public:
    RichTexts(const Sheet& sheet, const Cells& cells);

    // Writes them again, each into the cell it was in.
    void put_back() const;

  private:
    struct Part {
        rtl::OUString text;
        PropertyValues looks;
        rtl::OUString field;  // its service's name; empty for characters
        PropertyValues settings;
    };
    struct Text {
        std::int32_t column;
        std::int32_t row;
        std::vector<std::vector<Part>> paragraphs;
    };

    static Part part_of(const Ref<css::uno::XInterface>& portion);
    static std::vector<std::vector<Part>> paragraphs_of(const Ref<css::uno::XInterface>& cell);
    void write(const Text& text) const;

    Sheet sheet_;
    Cells cells_;
    std::vector<Text> texts_;
};

}  // namespace qor::calc

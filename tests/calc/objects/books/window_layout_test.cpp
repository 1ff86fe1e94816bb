#include "hosts/calc/adapter/ground/window_layout.hpp"

#include "tests/calc/support/fixture.hpp"

namespace qor::calc::tests {

using Places = std::vector<WindowPlace>;

TEST_CASE("windows are laid out in four styles") {
    const WindowPlace area{10, 20, 900, 601};
    CHECK(arranged(ArrangeStyle::tiled, 0, area).empty());
    for (const ArrangeStyle style :
         {ArrangeStyle::tiled, ArrangeStyle::cascade, ArrangeStyle::horizontal, ArrangeStyle::vertical}) {
        CHECK(arranged(style, 1, area) == Places{area});
    }
    CHECK(arranged(ArrangeStyle::horizontal, 3, area) ==
          Places{{10, 20, 900, 200}, {10, 220, 900, 200}, {10, 420, 900, 201}});
    CHECK(arranged(ArrangeStyle::vertical, 2, area) == Places{{10, 20, 450, 601}, {460, 20, 450, 601}});
    CHECK(arranged(ArrangeStyle::tiled, 2, area) == Places{{10, 20, 450, 601}, {460, 20, 450, 601}});
    CHECK(arranged(ArrangeStyle::tiled, 3, area) ==
          Places{{10, 20, 450, 601}, {460, 20, 450, 300}, {460, 320, 450, 301}});
    CHECK(arranged(ArrangeStyle::cascade, 3, area) ==
          Places{{70, 80, 840, 541}, {40, 50, 840, 541}, {10, 20, 840, 541}});
    CHECK(arranged(ArrangeStyle::cascade, 101, {0, 0, 800, 600}).back() == WindowPlace{0, 0, 500, 300});
}

}  // namespace qor::calc::tests

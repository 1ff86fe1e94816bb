#include <cstdlib>

#include "screens/wx/faces.hpp"
#include "screens/wx/tree/tree_window.hpp"
#include "tests/wx/fixture.hpp"

using namespace qor;
using namespace qor::tests;

namespace {

// The toolkit reads it when it starts.
struct Scaled {
    Scaled() { ::setenv("GDK_SCALE", "2", 1); }
};

struct ScaledKinds : Scaled, EveryKind {};

}  // namespace

TEST_CASE_FIXTURE(ScaledKinds, "at 200 % the windows are drawn with twice the pixels, and hit where they are drawn") {
    show([&](User& user) {
        wxPoint picture;
        user.on_screen([&] {
            auto& tree = window_of<wx::TreeWindow>("treMain");
            CHECK(tree.GetContentScaleFactor() == 2.0);
            picture = tree.picture_of(*form.treMain.find(u"book"));
            // A face of its own for this density, none that is blown up.
            const wxSize face = wx::face(u"FOLDER").GetBitmapFor(&tree).GetSize();
            CHECK(face.x == 32);
            CHECK(face.y == 32);
        });
        user.click_in("treMain", picture);
        CHECK(form.treMain.find(u"book")->image() == 2);
        user.click("chkPath");
        CHECK(form.chkPath.checked());
        user.click("cmdButton(1)");
    });
    CHECK_FALSE(form.loaded());
}

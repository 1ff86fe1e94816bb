#pragma once

#include <glib.h>

#include <memory>
#include <string>
#include <string_view>

namespace qor {

// GLib's values with their release. Only the implementation of the settings file includes this.
struct Release {
    void operator()(GKeyFile* file) const { g_key_file_unref(file); }
    void operator()(gchar* text) const { g_free(text); }
    void operator()(gchar** names) const { g_strfreev(names); }
};

using KeyFile = std::unique_ptr<GKeyFile, Release>;
using Text = std::unique_ptr<gchar, Release>;
using Names = std::unique_ptr<gchar*, Release>;

// With the comments and all lines of the text. Null for bytes that are no such text.
KeyFile parse_key_file(std::string_view bytes);

std::string bytes_of(const KeyFile& file);

}  // namespace qor

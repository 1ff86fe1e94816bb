#pragma once

namespace qor {

// Gives every workbook with one window a caption: its name, or its full path. What the host raises is raised on.
void QUpdateWindowCaption();

}  // namespace qor

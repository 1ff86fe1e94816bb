#pragma once

namespace qor {

// Of the selected worksheets. What the host raises is raised on.

// Each gets the first area of its own selection; the active sheet and the group come back.
void SetScrollAreas();
void ClearScrollAreas();

}  // namespace qor

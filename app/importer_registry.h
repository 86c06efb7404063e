#pragma once

namespace lumitra {

// Registers the vector importers with the open dispatch (bitmaps and projects
// are known to it already). Called once at start-up, before any file opens.
void register_importers();

} // namespace lumitra

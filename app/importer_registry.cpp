#include "importer_registry.h"

#include "import_items.h"
#include "open_dispatch.h"

namespace lumitra {

void register_importers()
{
    OpenDispatch &dispatch = OpenDispatch::instance();
    dispatch.registerImporter(QStringLiteral("svg"), importSvgItems);
    dispatch.registerImporter(QStringLiteral("dxf"), importDxfItems);
}

} // namespace lumitra

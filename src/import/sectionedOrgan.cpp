#include "import/sectionedOrgan.h"

#include "base/FormatError.h"
#include "import/SectionedConsole.h"

namespace velmora {

PipeOrgan readSectionedOrgan(std::string_view bytes, std::shared_ptr<const FileTree> tree)
{
    const OrganSections sections = OrganSections::read(bytes);
    PipeOrgan organ;
    OrganOmissions omissions;
    if (const OrganSection* general = sections.find("organ"))
        organ.name = general->text("churchname");
    SectionedConsole(sections, organ, omissions).build();
    organ.skipped = omissions.list();
    organ.tree = std::move(tree);
    if (organ.console.stops.empty())
        throw FormatError("cannot be played: it has no stop with pipes");
    return organ;
}

} // namespace velmora

#include "io/dsd_writer.h"

#include "io/dff_writer.h"
#include "io/dsf_writer.h"

namespace zuvo::io {

int maxChannels(DsdContainer container)
{
    return container == DsdContainer::Dsf ? 6 : 8;
}

std::unique_ptr<DsdWriter> makeDsdWriter(DsdContainer container)
{
    if (container == DsdContainer::Dsf)
        return std::make_unique<DsfWriter>();
    return std::make_unique<DffWriter>();
}

} // namespace zuvo::io

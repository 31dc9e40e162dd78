#include "resources/padding_description.h"

namespace orrelix {

const CDialogDescription& PaddingDescription() {
    using namespace describe;
    using Id = PaddingId;
    static const CDialogDescription description{
        "Padding Style",
        Column({Row({Number(Id::Left, "&Left:", 0, 5000), Number(Id::Right, "&Right:", 0, 5000)}),
                Row({Number(Id::Top, "&Top:", 0, 5000), Number(Id::Bottom, "&Bottom:", 0, 5000)}),
                OkAndCancel()})};
    return description;
}

} // namespace orrelix

#include "resources/border_description.h"

#include "resources/choices.h"

namespace orrelix {

const CDialogDescription& BorderDescription() {
    using namespace describe;
    using Id = BorderId;
    static const CDialogDescription description{
        "Border Properties",
        Column({ComboBox(Id::Style, "Border &Style:", kBorderStyles), Colour(Id::Color, "Border &Color"),
                Number(Id::Width, "Border &Width:", 0, 5000), OkAndCancel()})};
    return description;
}

} // namespace orrelix

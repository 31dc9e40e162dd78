#include "resources/select_script_description.h"

namespace orrelix {

const CDialogDescription& SelectScriptDescription() {
    using namespace describe;
    using Id = SelectScriptId;
    static const CDialogDescription description{
        "Select a DHTML Scripts",
        Column({ListBox(Id::Names, "", STYLE_NONE, "DHTML Scripts"),
                Text(Id::Description, "", STYLE_NONE, "Description"), OkAndCancel()})};
    return description;
}

} // namespace orrelix

#include "resources/select_script_description.h"

namespace orrelix {

const CDialogDescription& SelectScriptDescription() {
    using namespace describe;
    using Id = SelectScriptId;
    static const CDialogDescription description{
        "Select a DHTML Scripts",
        Column({Row({ListBox(Id::Names, "", STYLE_NONE,
                             "DHTML Scripts"), // In the order of the effects' types, as the list has them.
                     Picture(Id::Names, {"animate_text", "text_show", "calander", "cool_link", "scroll_text",
                                         "fade_select", "tool_tip", "today_ca", "dance_text"})}),
                Text(Id::Description, "", STYLE_NONE, "Description"), OkAndCancel()})};
    return description;
}

} // namespace orrelix

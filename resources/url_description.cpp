#include "resources/url_description.h"

namespace orrelix {

const CDialogDescription& UrlDescription() {
    using namespace describe;
    using Id = UrlId;
    static const CDialogDescription description{
        "Input an URL:",
        Column({Group("URL Information:", {ComboBox(Id::Type, "URL &Type:",
                                                    {"(other)", "file:", "ftp:", "gopher:", "http:", "https:",
                                                     "mailto:", "news:", "telnet:", "wais:"},
                                                    STYLE_SORTED),
                                           Edit(Id::Url, "URL(&U)", STYLE_NONE, "URL")}),
                OkAndCancel()})};
    return description;
}

} // namespace orrelix

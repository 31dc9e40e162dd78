// An effect of any type with any texts in its fields: its HTML is made, and it comes back from its file.
//
// Input: the type "1" to "9" and the number of items, such as "43"; the code page; the fields' texts, in UTF-8.
#include "core/fields.h"
#include "core/orrelix.h"
#include "fuzz/fuzzing.h"
#include "platform/code_page.h"
#include "platform/module.h"
#include "platform/text_conversion.h"

namespace orrelix {

namespace {

// Each text of an effect, and how its file has it.
class CTextFinder : public CParameterExchange {
public:
    struct CFound {
        std::string m_Name;
        CString* m_pText;
        bool m_bWhole;            // whatever it holds
        bool m_bFileName = false; // comes back with the folder, if the file is there
    };

    void Fields(const char*, std::initializer_list<CParameterField> fields) override {
        for (const CParameterField& field : fields) {
            if (field.m_pText)
                m_Found.push_back({field.m_pName, field.m_pText, field.m_bMasked, field.m_bFileName});
        }
    }
    void Text(const char*, CParameterField field) override {
        m_Found.push_back({field.m_pName, field.m_pText, true});
    }

    std::vector<CFound> m_Found;

protected:
    void DoItems(const char*, const CParameterColumn& column) override {
        for (CString* pItem : column.m_Items)
            m_Found.push_back({column.m_pName, pItem, column.m_bMasked, column.m_bFileName});
    }
};

std::vector<CTextFinder::CFound> TextsOf(CDhtmlGadget& gadget) {
    CTextFinder finder;
    gadget.ExchangeParameters(finder);
    return std::move(finder.m_Found);
}

bool IsPlain(const CString& text) {
    return !text.IsEmpty() && Trim(text.View()) == text.View() &&
           text.View().find_first_of("\r\n\\/") == std::string_view::npos;
}

// Fills the fields from the input; whether a file has them as they are. What would be a mask of the file's, or a comma
// where it has none, is known to come back as something else.
bool FillFields(CDhtmlGadget& gadget, CPieces& pieces) {
    bool bPlain = true;
    for (const auto& [name, pText, bWhole, bFileName] : TextsOf(gadget)) {
        if (pieces.AreLeft())
            *pText = ConvertPage(Without(pieces.Next(), bWhole ? "`" : "`,", '.'), "UTF-8", GetEncoding());
        bPlain = bPlain && (IsPlain(*pText) || pText->IsEmpty());
    }
    return bPlain;
}

std::string WithLineFeeds(const CString& text) {
    CString body = text;
    body.Replace("\r\n", "\n");
    return std::string(body.View());
}

void RequireHtml(COrrelix& orrelix) {
    for (const short nMode : {0, 1, 2}) {
        for (const short nPosition : {0, 1}) {
            const CString body = orrelix.GetHTMLBody(nPosition, nMode);
            Require(body.IsEmpty() || body.View().ends_with("\r\n"), "HTML ends with a line");
        }
    }
}

void RequireSegments(COrrelix& orrelix, const CVignelConfig& written) {
    const short nSegments = orrelix.GetHTMLSegmentNumber();
    Require(written.m_Segments.GetSize() == nSegments, "a file has all segments");
    for (short nSegment = 0; nSegment < nSegments; ++nSegment) {
        const CString body = orrelix.GetHTMLBody(nSegments == 2 && nSegment == 0 ? 1 : 0, 0);
        if (CString(body).MakeLower().Find("segment end") >= 0)
            return; // what is behind that is known to get lost
        Require(WithLineFeeds(written.m_Segments[nSegment].m_Body) == WithLineFeeds(body),
                "a file has the segments as they are");
    }
}

std::string Written(COrrelix& orrelix, const std::string& name) {
    Require(orrelix.WriteConfigFileEx(FuzzPath(name), 1), "an effect is written");
    return FileContent(FuzzFolder() / name);
}

// The writing that follows a reading; its fields stay as read.
std::string WrittenAgain(const std::string& from, const std::string& to, std::vector<CString>& fields) {
    COrrelix orrelix;
    Require(orrelix.ReadConfigFile(FuzzPath(from)), "an effect is read");
    const std::string written = Written(orrelix, to);
    for (const auto& found : TextsOf(*orrelix.m_pGadget))
        fields.push_back(*found.m_pText);
    return written;
}

void FuzzEffect(CPieces pieces) {
    const std::string head = pieces.Next() + "00";
    SetCodePage(std::atoi(pieces.Next().c_str())); // or as it was
    COrrelix orrelix;
    orrelix.SelectType(std::string(1, head[0]));
    ResizeLists(*orrelix.m_pGadget, (head[1] - '0') & 7);
    const bool bPlain = FillFields(*orrelix.m_pGadget, pieces);
    RequireHtml(orrelix);
    Written(orrelix, "1.cfg");
    std::vector<CString> fields, again, last;
    for (const auto& found : TextsOf(*orrelix.m_pGadget))
        fields.push_back(*found.m_pText);
    const std::string second = WrittenAgain("1.cfg", "2.cfg", again),
                      third = WrittenAgain("2.cfg", "3.cfg", last);
    Require(second == third, "an effect is written to the same bytes");
    Require(again == last, "an effect comes back");
    const auto texts = TextsOf(*orrelix.m_pGadget);
    for (size_t nField = 0; bPlain && nField < texts.size(); ++nField) {
        const bool bDiffers = fields[nField].IsEmpty() || texts[nField].m_bFileName;
        Require(bDiffers || fields[nField] == again[nField], texts[nField].m_Name + " comes back");
    }
    CVignelConfig store;
    if (bPlain && store.ReadFile(FuzzPath("1.cfg")))
        RequireSegments(orrelix, store);
}

} // namespace

} // namespace orrelix

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    orrelix::SetModuleDirectory(orrelix::FuzzPath("none")); // scripts would be copied each time
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, size_t nSize) {
    orrelix::FuzzEffect({pData, nSize});
    orrelix::SetCodePage(orrelix::kUtf8CodePage);
    return 0;
}

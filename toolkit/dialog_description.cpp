#include "toolkit/dialog_description.h"

#include <cctype>
#include <utility>

namespace orrelix {

namespace {

using Visit = std::function<void(const CControlDescription&, const char*)>;

void VisitControls(const CDialogItem& item, const char* pGroup, const Visit& visit) {
    if (item.m_Kind == CDialogItem::Kind::Control) {
        visit(item.m_Control, pGroup);
        return;
    }
    for (const CDialogItem& inner : item.m_Items)
        VisitControls(inner, item.m_Kind == CDialogItem::Kind::Group ? item.m_pTitle : pGroup, visit);
}

// The position of the mnemonic's "&", or npos.
size_t FindMnemonic(std::string_view text) {
    size_t nAt = text.find('&');
    while (nAt + 1 < text.size() && text[nAt + 1] == '&')
        nAt = text.find('&', nAt + 2);
    return nAt < text.size() && nAt + 1 < text.size() ? nAt : std::string_view::npos;
}

} // namespace

void ForEachControl(const CDialogDescription& description, const Visit& visit) {
    VisitControls(description.m_Content, "", visit);
}

CString WithoutMnemonic(const char* pText) {
    CString text;
    for (; *pText; ++pText) {
        if (*pText == '&' && pText[1])
            ++pText;
        text += *pText;
    }
    return text;
}

char MnemonicOf(const char* pText) {
    const size_t nAt = FindMnemonic(pText);
    if (nAt == std::string_view::npos)
        return 0;
    return static_cast<char>(std::tolower(static_cast<unsigned char>(pText[nAt + 1])));
}

namespace {

CString NameFromTexts(const CControlDescription& control) {
    for (const char* pText : {control.m_pName, control.m_pLabel, control.m_pCaption}) {
        CString name = WithoutMnemonic(pText);
        if (name.Right(1) == ":")
            name = name.Left(name.GetLength() - 1);
        if (!name.IsEmpty())
            return name;
    }
    return {};
}

} // namespace

CString AccessibleNameOf(const CControlDescription& control) {
    const CString name = NameFromTexts(control);
    return control.m_Kind == ControlKind::OwnerDrawnButton ? "Choose " + name : name;
}

CString OwnNameOf(const CDialogDescription& description, const CControlDescription& control) {
    const CString name = AccessibleNameOf(control);
    int nCalledSo = 0;
    CString group;
    ForEachControl(description, [&](const CControlDescription& other, const char* pGroup) {
        if (other.m_Kind != ControlKind::Spin && AccessibleNameOf(other) == name)
            ++nCalledSo;
        if (other.m_nId == control.m_nId)
            group = pGroup;
    });
    return nCalledSo > 1 && !group.IsEmpty() ? name + ", " + group : name;
}

namespace describe {
namespace {

CDialogItem Box(CDialogItem::Kind kind, const char* pTitle, Items items) {
    return {kind, pTitle, {}, std::move(items), 0, {}};
}

CDialogItem Control(CControlDescription control) {
    return {CDialogItem::Kind::Control, "", std::move(control), {}, 0, {}};
}

} // namespace

CDialogItem Row(Items items) {
    return Box(CDialogItem::Kind::Row, "", std::move(items));
}
CDialogItem Column(Items items) {
    return Box(CDialogItem::Kind::Column, "", std::move(items));
}
CDialogItem Group(const char* pTitle, Items items) {
    return Box(CDialogItem::Kind::Group, pTitle, std::move(items));
}

CDialogItem Text(int nId, const char* pCaption, unsigned nStyle, const char* pName) {
    return Control({.m_Kind = ControlKind::Static,
                    .m_nId = nId,
                    .m_pCaption = pCaption,
                    .m_pName = pName,
                    .m_nStyle = nStyle});
}

CDialogItem Edit(int nId, const char* pLabel, unsigned nStyle, const char* pName) {
    return Control({.m_Kind = ControlKind::Edit,
                    .m_nId = nId,
                    .m_pLabel = pLabel,
                    .m_pName = pName,
                    .m_nStyle = nStyle});
}

CDialogItem Number(int nId, const char* pLabel, int nLower, int nUpper, unsigned nStyle) {
    return Row({Edit(nId, pLabel, nStyle), Control({.m_Kind = ControlKind::Spin,
                                                    .m_nId = SpinOf(nId),
                                                    .m_pName = pLabel,
                                                    .m_nBuddy = nId,
                                                    .m_nLower = nLower,
                                                    .m_nUpper = nUpper})});
}

CDialogItem Colour(int nId, const char* pLabel) {
    return Row({Edit(nId, pLabel, STYLE_COLOUR), Control({.m_Kind = ControlKind::OwnerDrawnButton,
                                                          .m_nId = PickerOf(nId),
                                                          .m_pName = pLabel,
                                                          .m_nBuddy = nId})});
}

CDialogItem Button(int nId, const char* pCaption, const char* pLabel, const char* pName) {
    return Control({.m_Kind = ControlKind::Button,
                    .m_nId = nId,
                    .m_pLabel = pLabel,
                    .m_pCaption = pCaption,
                    .m_pName = pName,
                    .m_nStyle = nId == IDOK ? STYLE_DEFAULT : STYLE_NONE});
}

CDialogItem ListBox(int nId, const char* pLabel, unsigned nStyle, const char* pName) {
    return Control({.m_Kind = ControlKind::ListBox,
                    .m_nId = nId,
                    .m_pLabel = pLabel,
                    .m_pName = pName,
                    .m_nStyle = nStyle});
}

CDialogItem ListView(int nId, const char* pLabel, unsigned nStyle, const char* pName) {
    return Control({.m_Kind = ControlKind::ListCtrl,
                    .m_nId = nId,
                    .m_pLabel = pLabel,
                    .m_pName = pName,
                    .m_nStyle = nStyle});
}

CDialogItem ComboBox(int nId, const char* pLabel, std::vector<CChoice> choices, unsigned nStyle) {
    return Control({.m_Kind = ControlKind::ComboBox,
                    .m_nId = nId,
                    .m_pLabel = pLabel,
                    .m_nStyle = nStyle,
                    .m_Choices = std::move(choices)});
}

CDialogItem ComboBox(int nId, const char* pLabel, std::span<const CChoice> choices, unsigned nStyle) {
    return ComboBox(nId, pLabel, std::vector<CChoice>(choices.begin(), choices.end()), nStyle);
}

CDialogItem Slider(int nId, const char* pName, const char* pFrom, const char* pTo, int nLower, int nUpper,
                   int nTicks) {
    return Control({.m_Kind = ControlKind::Slider,
                    .m_nId = nId,
                    .m_pName = pName,
                    .m_nLower = nLower,
                    .m_nUpper = nUpper,
                    .m_nTicks = nTicks,
                    .m_pFrom = pFrom,
                    .m_pTo = pTo});
}

CDialogItem Picture(int nList, std::vector<const char*> pictures) {
    return {CDialogItem::Kind::Picture, "", {}, {}, nList, std::move(pictures)};
}

CDialogItem OkAndCancel() {
    return Row({Button(IDOK, "OK"), Button(IDCANCEL, "Cancel")});
}

} // namespace describe

} // namespace orrelix

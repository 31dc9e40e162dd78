// The effects: their text beside copying as many bytes, and their lists beside lists of a tenth of the items.
#include "bench/measure.h"
#include "core/parameters.h"
#include "core/vignel_config.h"
#include "gadgets/animate_text.h"
#include "gadgets/cool_link.h"
#include "gadgets/dance_text.h"
#include "gadgets/fade_select.h"
#include "gadgets/scroll_text.h"

#include <cstring>
#include <memory>

namespace orrelix {

namespace {

// The text of an effect beside copying as many bytes into memory of their own.
void GenerateBody(benchmark::State& state, long nItems, size_t nItemSize) {
    CAnimateText animate;
    animate.m_Messages.RemoveAll();
    for (long nItem = 0; nItem < nItems; ++nItem)
        animate.m_Messages.Add(CString(std::string(nItemSize, 'm')));
    CVignelConfig config;
    const std::string text(animate.GetHTMLBody(config, kPublish, 0).View());
    MeasureBeside(
        state, text.size(),
        [&] {
            std::unique_ptr<char[]> pCopy(new char[text.size()]);
            benchmark::DoNotOptimize(memcpy(pCopy.get(), text.data(), text.size()));
        },
        [&] { benchmark::DoNotOptimize(animate.GetHTMLBody(config, kPublish, 0).GetLength()); });
}

// nItems items, each with a comma to be masked where texts are.
void Fill(CStringArray& items, long nItems, const std::string& item) {
    items.RemoveAll();
    for (long nItem = 0; nItem < nItems; ++nItem)
        items.Add(item + Number(nItem));
}

std::unique_ptr<CDhtmlGadget> MakeAnimateText(long nItems) {
    auto pGadget = std::make_unique<CAnimateText>();
    Fill(pGadget->m_Messages, nItems, "Message, with some more text behind it ");
    return pGadget;
}

std::unique_ptr<CDhtmlGadget> MakeColorLink(long nItems) {
    auto pGadget = std::make_unique<CDanceText>();
    Fill(pGadget->m_Colors, nItems, "");
    return pGadget;
}

std::unique_ptr<CDhtmlGadget> MakeScrollText(long nItems) {
    auto pGadget = std::make_unique<CScrollText>();
    Fill(pGadget->m_Texts, nItems, "Text, ");
    Fill(pGadget->m_Links, nItems, "https://host/folder,page");
    return pGadget;
}

// A drop-down whose every item has a text, a link and an image.
template <class TSelect>
std::unique_ptr<TSelect> MakeSelect(long nItems) {
    auto pGadget = std::make_unique<TSelect>();
    Fill(pGadget->m_Texts, nItems, "Text, ");
    Fill(pGadget->m_Links, nItems, "https://host/folder,page");
    Fill(pGadget->m_Images, nItems, "\\home\\ann\\image");
    GrowTo(nItems, pGadget->m_ImageSizes);
    return pGadget;
}

std::unique_ptr<CDhtmlGadget> MakeLinkSelect(long nItems) {
    return MakeSelect<CCoolLink>(nItems);
}

std::unique_ptr<CDhtmlGadget> MakeFadeSelect(long nItems) {
    auto pGadget = MakeSelect<CFadeSelect>(nItems);
    Fill(pGadget->m_ToolTips, nItems, "Tip, ");
    GrowTo(nItems, pGadget->m_ItemFonts);
    return pGadget;
}

using MakeGadget = std::unique_ptr<CDhtmlGadget> (*)(long nItems);

// An effect with its parameters in a store.
struct CStoredList {
    CStoredList(MakeGadget make, long nItems) : m_pGadget(make(nItems)) {
        m_pGadget->WriteParameters(m_Config);
    }

    std::unique_ptr<CDhtmlGadget> m_pGadget;
    CVignelConfig m_Config;
};

enum class EWork { Read, Write, Generate };

void Do(EWork work, CStoredList& list) {
    switch (work) {
    case EWork::Read:
        list.m_pGadget->ReadParameters(list.m_Config, "\\home\\ann\\");
        break;
    case EWork::Write:
        list.m_Config.ClearParameters();
        list.m_pGadget->WriteParameters(list.m_Config);
        break;
    case EWork::Generate:
        benchmark::DoNotOptimize(list.m_pGadget->GetHTMLBody(list.m_Config, kPublish, 0).GetLength());
    }
}

void WorkOnList(benchmark::State& state, MakeGadget make, EWork work) {
    constexpr long kItems = 60'000;
    CStoredList tenth(make, kItems / 10), whole(make, kItems);
    MeasureBeside(
        state, 0, [&] { Do(work, tenth); }, [&] { Do(work, whole); });
}

const int s_nRegistered = [] {
    benchmark::RegisterBenchmark("GetHTMLBody, defaults", GenerateBody, 4, size_t(30))
        ->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark("GetHTMLBody, one text of 4 MiB", GenerateBody, 1, size_t(4) << 20)
        ->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark("GetHTMLBody, 60,000 texts", GenerateBody, 60'000, size_t(50))
        ->Unit(benchmark::kMicrosecond);

    const struct {
        const char* m_pName;
        MakeGadget m_Make;
    } effects[] = {{"Animate Text", MakeAnimateText},
                   {"Color Link", MakeColorLink},
                   {"Scroll Text", MakeScrollText},
                   {"Link Select Table", MakeLinkSelect},
                   {"Fade Select Box", MakeFadeSelect}};
    for (const auto& [pName, make] : effects) {
        for (const auto& [pWork, work] :
             {std::pair{"read", EWork::Read}, {"write", EWork::Write}, {"generate", EWork::Generate}}) {
            const std::string name = std::string(pWork) + " 60,000 items beside 6,000, " + pName;
            benchmark::RegisterBenchmark(name.c_str(), WorkOnList, make, work)->Unit(benchmark::kMillisecond);
        }
    }
    return 0;
}();

} // namespace

} // namespace orrelix

// A host that runs out of memory: in each call of the component each allocation fails, alone and with all behind it.
//
//     orrelix_faults [STEP]       every STEP-th allocation only
//
// The library is loaded anew each time, so that what it does only once is among it. A call has to tell its failure, or
// to do without what it didn't get; the object does then what it does at any other time, and takes with it whatever was
// allocated and opened.
//
// calls.txt has the members: those of the object's two interfaces, and those by which effects differ. "Title = news"
// gets and puts, arguments are converted to what the member takes, "|" is the end of an item.
#include "include/orrelix.hpp"
#include "tests/faults/failing_heap.h"

#include <csignal>
#include <fstream>
#include <functional>
#include <iostream>
#include <iterator>
#include <map>
#include <set>
#include <tuple>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

const fs::path kExamples = fs::path(ORRELIX_SOURCE_DIR) / "examples";

struct CMemberCall {
    std::string m_Name;
    std::vector<std::string> m_Arguments;
    bool m_bProperty = false;
};

CMemberCall ParseCall(const std::string& line) {
    const size_t nPut = line.find(" = "), nName = line.find('(');
    if (nPut != line.npos)
        return {line.substr(0, nPut), {line.substr(nPut + 3)}, true};
    CMemberCall call{line.substr(0, nName), {}};
    for (size_t nAt = nName + 1, nEnd = 0; nAt + 1 < line.size(); nAt = nEnd + 2) {
        nEnd = std::min(line.find(", ", nAt), line.size() - 1);
        call.m_Arguments.push_back(line.substr(nAt, nEnd - nAt));
        std::replace(call.m_Arguments.back().begin(), call.m_Arguments.back().end(), '|', '\0');
    }
    return call;
}

using CCallTable = std::map<std::string, std::vector<CMemberCall>>;

CCallTable ReadCalls() {
    CCallTable calls;
    std::ifstream file(fs::path(ORRELIX_SOURCE_DIR) / "tests/faults/calls.txt");
    std::string section;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with('['))
            section = line;
        else if (!line.empty())
            calls[section].push_back(ParseCall(line));
    }
    return calls;
}

// What an object has behind it when the call comes.
struct CState {
    fs::path m_Example; // what it has read, unless empty
    int m_nCodePage;
};

struct CLoadedLibrary : vignel::Library {
    CLoadedLibrary() : Library(fs::path(ORRELIX_LIBRARY)) {}
    ~CLoadedLibrary() { VignelUnload(Handle()); }
};

struct CHost {
    explicit CHost(const CState& state) : m_Example(state.m_Example) {
        fs::remove_all("out");
        fs::create_directory("out");
        m_Inspector.Put("CodePage", state.m_nCodePage);
        m_Orrelix.SetTitle("news");
        if (!m_Example.empty() && !m_Orrelix.ReadConfigFile(m_Example))
            throw std::runtime_error(m_Example.native() + " can't be read");
        m_Inspector.Call("GetPageFileNumber");
    }

    VignelResult Entry(const char* pName) const {
        return reinterpret_cast<VignelPlainFunction>(VignelEntry(m_Library.Handle(), pName))();
    }

    const fs::path m_Example;
    CLoadedLibrary m_Library;
    vignel::Orrelix m_Orrelix{m_Library};
    vignel::Object m_Inspector = m_Orrelix.Inspector();
};

// What a call gives: its code and its result.
struct CAnswer {
    VignelResult m_nCode = VIGNEL_S_OK;
    std::string m_Result;

    bool operator==(const CAnswer&) const = default;
};

std::string Shown(vignel::Value& value) {
    const VignelVariant& variant = *value.Address();
    if (variant.vt == VIGNEL_EMPTY)
        return "";
    if (variant.vt == VIGNEL_BSTR)
        return value.As<std::string>();
    if (variant.vt == VIGNEL_BOOL)
        return variant.boolVal ? "true" : "false";
    return variant.vt == VIGNEL_DATE ? std::to_string(variant.date) : std::to_string(value.As<int>());
}

CAnswer CallMember(const CHost& host, const vignel::Object& object, const CMemberCall& call, uint16_t flags) {
    std::vector<vignel::Value> values;
    std::vector<VignelVariant> variants;
    for (const std::string& argument : call.m_Arguments) {
        const bool bExample = argument == "$EXAMPLE", bInstance = argument == "$INSTANCE";
        values.emplace_back(bExample    ? host.m_Example.native()
                            : bInstance ? std::to_string(host.m_Orrelix.GetResourceInstance())
                                        : argument);
        variants.insert(variants.begin(), *values.back().Address());
    }
    int32_t nNameOfPut = VIGNEL_NAME_OF_PUT, nMember = 0;
    const bool bPut = flags == VIGNEL_PUT;
    const auto nGiven = static_cast<uint32_t>(flags == VIGNEL_GET ? 0 : variants.size());
    VignelArguments arguments{variants.data(), bPut ? &nNameOfPut : nullptr, nGiven, bPut};
    vignel::Value name(call.m_Name), result;
    VignelException exception{};
    const VignelResult nCode = g_heap.Armed([&] {
        VignelDispatch* pObject = object.Address();
        pObject->GetIDsOfNames(VignelIidNull, &name.Address()->bstrVal, 1, 0, &nMember);
        return pObject->Invoke(nMember, VignelIidNull, 0, flags, &arguments, result.Address(), &exception,
                               nullptr);
    });
    VignelFreeString(exception.bstrDescription);
    const bool bPlaceInMemory = call.m_Name == "GetResourceInstance";
    return {nCode, bPlaceInMemory ? "" : Shown(result)};
}

using CCall = std::function<CAnswer(const CHost&)>;

// Calls beside those of members, and what makes them possible.
using CEntryCall = VignelResult (*)(const CHost&);

VignelResult CreateAnother(const CHost& host) {
    VignelDispatch* pObject = nullptr;
    const VignelResult nCode = VignelCreate(host.m_Library.Handle(), &VignelClsidOrrelix, &pObject);
    if (pObject)
        pObject->Release();
    return nCode;
}

VignelResult Register(const CHost& host) {
    return host.Entry("DllRegisterServer");
}

VignelResult Unregister(const CHost& host) {
    return host.Entry("DllUnregisterServer");
}

constexpr struct {
    const char* m_pName;
    CEntryCall m_pCall;
    CEntryCall m_pBefore;
} kEntryCalls[] = {
    {"DllGetClassObject", CreateAnother, CreateAnother},
    {"DllRegisterServer", Register, Unregister},
    {"DllUnregisterServer", Unregister, Register},
};

// What an object holds, as its members tell it.
std::string StateOf(const CHost& host) {
    const auto& [orrelix, inspector] = std::tie(host.m_Orrelix, host.m_Inspector);
    std::string state = inspector.Call<std::string>("GetEffectType");
    for (const char* pProperty :
         {"ProgID", "Title", "Description", "BitmapFileName", "PreviewPath", "LastUpdateTime"})
        state += "\n" + orrelix.Get<std::string>(pProperty);
    for (const auto& field : inspector.Call<vignel::Items>("GetFieldNames")) {
        state += "\n" + field;
        if (!inspector.Call<bool>("IsFieldList", field))
            state += " " + inspector.Call<std::string>("GetField", field);
        else
            for (const auto& item : inspector.Call<vignel::Items>("GetFieldItems", field))
                state += "|" + item;
    }
    for (const auto& key : inspector.Call<vignel::Items>("GetParameterKeys"))
        state += "\n" + inspector.Call<std::string>("GetParameterValue", key);
    for (int nSegment = 0; nSegment < inspector.Call<int>("GetSegmentNumber"); ++nSegment)
        state += "\n" + inspector.Call<std::string>("GetSegmentBody", nSegment);
    for (short nResource = 0; nResource < orrelix.GetResourceNumber(); ++nResource)
        state += "\n" + orrelix.GetResourceLocalPath(nResource) + orrelix.GetResourceName(nResource);
    return state + orrelix.GetHTMLBody(0, 0) + orrelix.GetHTMLBody(1, 1);
}

// What an object is good for, whatever came before.
std::string Probe(const CHost& host) {
    host.m_Inspector.Put("CodePage", 65001);
    host.m_Inspector.Put("Effect", "Color Link");
    host.m_Orrelix.SetTitle("probe");
    return host.m_Orrelix.GetTitle() + host.m_Orrelix.GetHTMLBody(0, 1);
}

long CountEntries(const fs::path& folder) {
    return std::distance(fs::directory_iterator(folder), fs::directory_iterator());
}

// Whether the calls have every member of the interface.
bool HaveAll(const std::vector<CMemberCall>& calls, const vignel::Object& object) {
    std::set<int32_t> members;
    for (const CMemberCall& call : calls) {
        vignel::Value name(call.m_Name);
        int32_t nMember = 0;
        object.Address()->GetIDsOfNames(VignelIidNull, &name.Address()->bstrVal, 1, 0, &nMember);
        members.insert(nMember);
    }
    const auto nMembers = static_cast<int32_t>(members.size());
    VignelArguments none{};
    const VignelResult nBehind = object.Address()->Invoke(nMembers + 1, VignelIidNull, 0, VIGNEL_METHOD,
                                                          &none, nullptr, nullptr, nullptr);
    return *members.begin() == 1 && *members.rbegin() == nMembers && nBehind == VIGNEL_E_MEMBERNOTFOUND;
}

struct CExpected {
    CAnswer m_Answer;
    std::string m_Probe;  // of the object afterwards
    std::string m_Before; // its states
    std::string m_After;
    std::vector<CAnswer> m_Failures;
};

char g_now[200]; // for a host that ends here

// Tries calls and tells their faults.
class CTrial {
public:
    explicit CTrial(long nStep) : m_nStep(nStep) {}

    void Try(const std::string& name, const CState& state, const CCall& call);
    void TryMembers(const CState& state, const std::vector<CMemberCall>& calls, bool bInspector);
    void TryLoading();
    bool Report() const;

private:
    template <class TRound>
    void EachAllocation(const std::string& name, TRound round);

    const long m_nStep;
    long m_nCalls = 0;
    long m_nFailed = 0;
    std::set<std::string> m_Faults;
};

// round() makes the call, and gives what is wrong with its answer.
template <class TRound>
void CTrial::EachAllocation(const std::string& name, TRound round) {
    ++m_nCalls;
    for (const bool bOthersToo : {false, true}) {
        long nFailed = 1;
        for (long nAllocation = 1; nFailed > 0; nAllocation += m_nStep) {
            snprintf(g_now, sizeof g_now, "%s, allocation %ld%s\n", name.c_str(), nAllocation,
                     bOthersToo ? " and all behind" : "");
            g_heap.FailAt(nAllocation, bOthersToo);
            const std::string fault = round();
            nFailed = g_heap.m_nFailed;
            m_nFailed += nFailed;
            if (!fault.empty() && m_Faults.insert(name + fault).second)
                std::cout << g_now << "   " << fault << "\n";
        }
    }
}

std::string FaultOf(const CState& state, const CCall& call, const CExpected& expected) {
    const CHost host(state);
    const CAnswer answer = call(host);
    g_heap.Pass();
    std::string fault;
    if (answer != expected.m_Answer && std::find(expected.m_Failures.begin(), expected.m_Failures.end(),
                                                 answer) == expected.m_Failures.end())
        fault += " gives \"" + answer.m_Result + "\" and code " + std::to_string(answer.m_nCode);
    for (const auto& entry : fs::directory_iterator("out")) {
        if (entry.path().filename().native().starts_with('.'))
            fault += " leaves a temporary file";
    }
    if (const std::string now = StateOf(host); now != expected.m_Before && now != expected.m_After)
        fault += " is left half done";
    if (call(host) != expected.m_Answer)
        fault += " can't be repeated";
    if (Probe(host) != expected.m_Probe)
        fault += " breaks the object";
    return fault;
}

void CTrial::Try(const std::string& name, const CState& state, const CCall& call) {
    CExpected expected{{}, "", "", "", {{VIGNEL_E_OUTOFMEMORY, ""}}};
    for (const char* pMember : {"ReadConfigFile", "WriteConfigFile", "Config"}) {
        if (name.starts_with(pMember))
            expected.m_Failures.push_back({VIGNEL_S_OK, "false"});
    }
    if (name.starts_with("Dll"))
        expected.m_Failures.push_back({VIGNEL_E_FAIL, ""});
    // Twice: what the system's library keeps for ever is there from then on.
    for (int nTime = 0; nTime < 2; ++nTime) {
        g_heap.FailAt(0, false);
        expected.m_Before = StateOf(CHost(state));
        const CHost host(state);
        expected.m_Answer = call(host);
        expected.m_After = StateOf(host);
        expected.m_Probe = Probe(host);
    }
    EachAllocation(name, [&] {
        const long nLive = g_heap.m_nLive, nOpen = CountEntries("/proc/self/fd");
        std::string fault = FaultOf(state, call, expected);
        if (fault.empty() && g_heap.m_nLive != nLive)
            fault = " leaks memory";
        return CountEntries("/proc/self/fd") == nOpen ? fault : fault + " leaves a file open";
    });
}

void CTrial::TryMembers(const CState& state, const std::vector<CMemberCall>& calls, bool bInspector) {
    for (const CMemberCall& call : calls) {
        for (const uint16_t flags : {VIGNEL_METHOD, VIGNEL_GET, VIGNEL_PUT}) {
            if (call.m_bProperty == (flags != VIGNEL_METHOD))
                Try(call.m_Name + " after " + state.m_Example.stem().native(), state, [&](const CHost& host) {
                    return CallMember(host, bInspector ? host.m_Inspector : host.m_Orrelix, call, flags);
                });
        }
    }
}

// A failure is the system's to tell; what the library does on its own mustn't end the program.
void CTrial::TryLoading() {
    CLoadedLibrary(); // what the system's library keeps for ever is there from then on
    EachAllocation("loading", [] {
        if (void* pLibrary = g_heap.Armed([] { return VignelLoad(ORRELIX_LIBRARY); }))
            VignelUnload(pLibrary);
        return "";
    });
}

bool CTrial::Report() const {
    std::cout << m_nCalls << " calls, " << m_nFailed << " failed allocations, " << m_Faults.size()
              << " faults\n";
    return m_Faults.empty();
}

void TellWhere(int nSignal) {
    [[maybe_unused]] const auto nWritten = write(STDERR_FILENO, g_now, strlen(g_now));
    signal(nSignal, SIG_DFL);
    raise(nSignal);
}

bool TryAll(long nStep) {
    CTrial trial(nStep);
    trial.TryLoading();
    const CState nothing{{}, 65001}, read{kExamples / "cool_link_rich.cfg", 65001},
        converted{read.m_Example, 936};
    for (const auto& entry : kEntryCalls) {
        trial.Try(entry.m_pName, nothing, [&](const CHost& host) {
            entry.m_pBefore(host);
            return CAnswer{g_heap.Armed([&] { return entry.m_pCall(host); }), ""};
        });
    }
    CCallTable calls = ReadCalls();
    if (const CHost host(nothing);
        !HaveAll(calls["[orrelix]"], host.m_Orrelix) || !HaveAll(calls["[inspector]"], host.m_Inspector)) {
        std::cout << "calls.txt lacks members\n";
        return false;
    }
    for (const CState& state : {nothing, read, converted}) {
        trial.TryMembers(state, calls["[orrelix]"], false);
        trial.TryMembers(state, calls["[inspector]"], true);
    }
    for (const auto& entry : fs::directory_iterator(kExamples)) {
        if (entry.path().native().ends_with("_rich.cfg"))
            trial.TryMembers({entry.path(), 65001}, calls["[effect]"], false);
    }
    return trial.Report();
}

} // namespace

int main(int nArguments, char** pArguments) {
    std::string folder = (fs::temp_directory_path() / "orrelix-faults-XXXXXX").native();
    if (!mkdtemp(folder.data()))
        return 2;
    fs::current_path(folder);
    for (const char* pFolder : {"XDG_CONFIG_HOME", "XDG_CONFIG_DIRS"})
        setenv(pFolder, folder.c_str(), 1);
    for (const char* pScreen : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        unsetenv(pScreen);
    for (const int nSignal : {SIGABRT, SIGSEGV})
        signal(nSignal, TellWhere);
    const bool bGood = TryAll(nArguments > 1 ? std::stol(pArguments[1]) : 1);
    fs::current_path("/");
    fs::remove_all(folder);
    return bGood ? 0 : 1;
}

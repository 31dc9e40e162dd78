// The program orrelix: what a page editor does with the component, as commands.
#include "host/component.h"
#include "host/edit.h"
#include "host/nearest_word.h"
#include "host/preview.h"
#include "host/publish.h"
#include "host/registration.h"
#include "host/report.h"
#include "host/show.h"
#include "host/text_encoding.h"
#include "platform/code_page.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <fmt/format.h>
#include <functional>
#include <iostream>
#include <memory>
#include <string>

namespace orrelix {

namespace {

constexpr char kHelp[] = "help";
constexpr char kOverwriteHelp[] =
    "Replace files that this program didn't put there, and take images of any name and servers' code";

// One command of the program: its arguments, and what it does with them.
struct CCommand {
    CLI::App* m_pArguments;
    std::function<void(CReport& report)> m_Run;
};

const CLI::Validator NotEmpty([](const std::string& text) { return text.empty() ? "names no file" : ""; },
                              "");

CCommand AddShow(CLI::App& program) {
    auto pOptions = std::make_shared<CShowOptions>();
    CLI::App* pShow = program.add_subcommand("show", "Print what a configuration file holds");
    pShow->add_option("FILE", pOptions->m_File, "The configuration file")->required()->check(NotEmpty);
    pShow->add_flag("--json", pOptions->m_bJson, "Print it as JSON");
    return {pShow, [pOptions](CReport& report) { Show(*pOptions, report); }};
}

CCommand AddPreview(CLI::App& program) {
    auto pOptions = std::make_shared<CPreviewOptions>();
    CLI::App* pPreview =
        program.add_subcommand("preview", "Make a page to look at for each configuration file");
    pPreview->add_option("FILE", pOptions->m_Files, "The configuration files")->required()->check(NotEmpty);
    pPreview->add_option("--out", pOptions->m_Out, "The folder for the pages")
        ->required()
        ->check(NotEmpty)
        ->type_name("DIR");
    pPreview->add_flag("--index", pOptions->m_bIndex, "Write an index.html that shows all of them");
    pPreview->add_flag("--overwrite", pOptions->m_bOverwrite, kOverwriteHelp);
    return {pPreview, [pOptions](CReport& report) { Preview(*pOptions, report); }};
}

CCommand AddPublish(CLI::App& program) {
    auto pOptions = std::make_shared<CPublishOptions>();
    CLI::App* pPublish = program.add_subcommand("publish", "Put an effect into a page of a site");
    pPublish->add_option("FILE", pOptions->m_File, "The configuration file")->required()->check(NotEmpty);
    pPublish->add_option("--page", pOptions->m_Page, "The page, marked with <!-- vignel: TITLE -->")
        ->required()
        ->check(NotEmpty)
        ->type_name("PAGE");
    pPublish->add_option("--site", pOptions->m_Site, "The folder of the site's root")
        ->required()
        ->check(NotEmpty)
        ->type_name("DIR");
    pPublish->add_flag("--overwrite", pOptions->m_bOverwrite, kOverwriteHelp);
    return {pPublish, [pOptions](CReport& report) { Publish(*pOptions, report); }};
}

void AddEditOptions(CLI::App& command, CEditOptions& options) {
    command
        .add_option("--set", options.m_Sets, "Set a field, without dialogs; a list's name once for each item")
        ->type_name("NAME=VALUE")
        ->allow_extra_args(false);
    command.add_flag("--list-fields", options.m_bListFields,
                     "Print the fields and what they hold, and write nothing");
    command.add_flag("--json", options.m_bJson, "With --list-fields: print them as JSON");
    command.add_flag("--overwrite", options.m_bOverwrite, "Copy images over files of the same name");
}

CCommand AddNew(CLI::App& program) {
    auto pOptions = std::make_shared<CEditOptions>();
    CLI::App* pNew = program.add_subcommand("new", "Make an effect, in dialogs or by options");
    pNew->add_option("FILE", pOptions->m_File, "The configuration file to make")->required()->check(NotEmpty);
    pNew->add_option("--title", pOptions->m_Title,
                     "Its title, by which a page marks its place; else the file's name");
    pNew->add_option("--effect", pOptions->m_Effect, "The effect's name, to make it without dialogs")
        ->type_name("NAME");
    AddEditOptions(*pNew, *pOptions);
    return {pNew, [pOptions](CReport& report) { NewEffect(*pOptions, report); }};
}

CCommand AddEdit(CLI::App& program) {
    auto pOptions = std::make_shared<CEditOptions>();
    CLI::App* pEdit = program.add_subcommand("edit", "Change an effect, in its dialogs or by options");
    pEdit->add_option("FILE", pOptions->m_File, "The configuration file")->required()->check(NotEmpty);
    AddEditOptions(*pEdit, *pOptions);
    return {pEdit, [pOptions](CReport& report) { EditEffect(*pOptions, report); }};
}

CCommand AddRegister(CLI::App& program) {
    auto pLibrary = std::make_shared<std::filesystem::path>();
    CLI::App* pRegister = program.add_subcommand("register", "Let editors find the component");
    pRegister->add_option("LIBRARY", *pLibrary, "The component's library; else the one beside the program");
    return {pRegister, [pLibrary](CReport& report) { Register(*pLibrary, report); }};
}

CCommand AddUnregister(CLI::App& program) {
    return {program.add_subcommand("unregister", "Take the component out of the user's registry"),
            Unregister};
}

CCommand AddServers(CLI::App& program) {
    return {program.add_subcommand("servers", "Print the components that editors find"), PrintServers};
}

// The program's exit code, once everything is printed.
int Finish(CReport& report) {
    std::cout.flush();
    if (!std::cout)
        report.Error("standard output", "can't be written");
    return report.GetExitCode();
}

// What a refusal of the component is about: the command's one file, or all that it does.
std::string SubjectOf(const CCommand& command) {
    const CLI::Option* pFile = command.m_pArguments->get_option_no_throw("FILE");
    return pFile && pFile->count() == 1 ? pFile->as<std::string>() : command.m_pArguments->get_name();
}

// Whatever a command throws makes the program fail and nothing else.
int RunCommand(const CCommand& command) {
    CReport report;
    try {
        command.m_Run(report);
    } catch (const CFileError& error) {
        report.Error(error.m_File, error.what());
    } catch (const std::filesystem::filesystem_error& error) {
        report.Error(error.path1().string(), "can't be reached: " + error.code().message());
    } catch (const vignel::Error& error) {
        report.Error(SubjectOf(command), error.what());
    } catch (const std::exception& error) {
        report.Error(command.m_pArguments->get_name(), error.what());
    }
    return Finish(report);
}

int WrongUsage(const std::string& text) {
    std::cerr << "orrelix: " << Printable(text) << "\nTry 'orrelix --help'.\n";
    return kWrongUsage;
}

std::vector<std::string> CommandNames(const CLI::App& program) {
    std::vector<std::string> names = {kHelp};
    for (const CLI::App* pCommand : program.get_subcommands(nullptr))
        names.push_back(pCommand->get_name());
    return names;
}

// What to say of a word that is nearly a command or an option; empty when there is none.
std::string SayWhatWasMeant(const CLI::App& program) {
    const std::vector<CLI::App*> given = program.get_subcommands();
    const CLI::App& command = given.empty() ? program : *given.front();
    std::vector<std::string> known = given.empty() ? CommandNames(program) : std::vector<std::string>();
    const auto isOption = [](const CLI::Option* pOption) { return pOption->nonpositional(); };
    for (const CLI::App* pTaker : {&command, &program}) {
        for (const CLI::Option* pOption : pTaker->get_options(isOption))
            known.push_back(pOption->get_name());
    }
    for (const std::string& word : program.remaining(true)) {
        const std::string meant = DidYouMean(word.substr(0, word.find('=')), known, "");
        if (!meant.empty())
            return fmt::format("{} is unknown; {}", word, meant);
    }
    return {};
}

int RunProgram(int nArguments, char** ppArguments) {
    CLI::App program(
        "Makes, shows, previews and publishes effects for web pages, kept in configuration files.",
        "orrelix");
    program.set_version_flag("-V,--version", "orrelix " ORRELIX_VERSION);
    program.require_subcommand(1);
    program.fallthrough();
    program.footer("'orrelix help COMMAND' tells about a command, 'man orrelix' about all.\n"
                   "What would steer a terminal is printed as \"\\x1B\", in pipes too, be it in a path.");
    int nCodePage = kUtf8CodePage;
    program.add_option("--code-page", nCodePage, "The code page of the files' texts, UTF-8 if not given")
        ->type_name("N");
    const CCommand commands[] = {AddNew(program),        AddEdit(program),    AddShow(program),
                                 AddPreview(program),    AddPublish(program), AddRegister(program),
                                 AddUnregister(program), AddServers(program)};
    // The last one first, as the parser takes them.
    std::vector<std::string> arguments(std::reverse_iterator(ppArguments + nArguments),
                                       std::reverse_iterator(ppArguments + 1));
    if (!arguments.empty() && arguments.back() == kHelp) {
        arguments.pop_back();
        const std::vector<std::string> names = CommandNames(program);
        if (!arguments.empty() && !arguments.back().starts_with('-') &&
            std::find(names.begin(), names.end(), arguments.back()) == names.end())
            return WrongUsage(fmt::format("{} is unknown; {}", arguments.back(),
                                          DidYouMean(arguments.back(), names, "it is no command")));
        arguments.insert(arguments.begin(), "--help");
    }
    try {
        program.parse(std::move(arguments));
    } catch (const CLI::Success& success) { // --help, --version
        program.exit(success);
        CReport report;
        return Finish(report);
    } catch (const CLI::ParseError& error) {
        const std::string meant = SayWhatWasMeant(program);
        return WrongUsage(meant.empty() ? error.what() : meant);
    }
    if (!SetCodePage(nCodePage) || !IsConvertible(GetEncoding()))
        return WrongUsage(fmt::format("--code-page: {} is no code page that is known here", nCodePage));
    for (const CCommand& command : commands) {
        if (command.m_pArguments->parsed())
            return RunCommand(command);
    }
    return kWrongUsage;
}

} // namespace

} // namespace orrelix

int main(int nArguments, char** ppArguments) {
    try {
        return orrelix::RunProgram(nArguments, ppArguments);
    } catch (const std::exception& error) {
        std::cerr << "orrelix: " << orrelix::Printable(error.what()) << '\n';
        return orrelix::kFailure;
    }
}

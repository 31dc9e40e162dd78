#include "tests/support/session.h"

#include "tests/support/temporary_directory.h"

#include <sstream>

namespace orrelix {

namespace {

std::string Indented(const std::string& text) {
    std::istringstream lines(text);
    std::string indented;
    for (std::string line; std::getline(lines, line);)
        indented += line.empty() ? "\n" : "  " + line + (lines.eof() ? " (and no line end)\n" : "\n");
    return indented;
}

using CAnswer = std::function<std::string(const std::string&)>;

// The file's text with these answers in place of its own, and an empty line before each comment but the first.
std::string Answered(const std::filesystem::path& file, const CAnswer& answer) {
    std::istringstream session(FileContent(file));
    std::string text, question;
    bool bAfterComment = true;
    for (std::string line; std::getline(session, line) || !question.empty(); line.clear()) {
        if (!question.empty() && line.starts_with("  > ")) {
            question += "\n" + line.substr(4);
            text += line + "\n";
            continue;
        }
        if (!question.empty())
            text += Indented(answer(question));
        question = line.starts_with("  $ ") ? line.substr(4) : "";
        const bool bComment = !line.empty() && !line.starts_with("  ");
        text += bComment && !bAfterComment ? "\n" : "";
        text += bComment || !question.empty() ? line + "\n" : "";
        bAfterComment = bComment;
    }
    return text;
}

} // namespace

std::vector<std::string> QuestionsOf(const std::filesystem::path& file) {
    std::vector<std::string> questions;
    Answered(file, [&](const std::string& question) {
        questions.push_back(question);
        return "";
    });
    return questions;
}

testing::AssertionResult GoesAsItStands(const std::filesystem::path& file, const CAnswer& answer) {
    return EqualsExpected(file, Answered(file, answer));
}

} // namespace orrelix

#include "host/preview_page.h"

#include "host/report.h"
#include "host/text_encoding.h"

#include <fmt/format.h>

namespace orrelix {

namespace {

// All names are the frame's own, so that it and the effect leave each other alone. Effects were made for
// light pages, so their stage is one, whatever the frame is.
constexpr char kSharedStyle[] = R"(
:root {
    color-scheme: light dark;
    --orrelix-ground: #eef1f5;
    --orrelix-card: #fff;
    --orrelix-line: #d3dae3;
    --orrelix-text: #1c2733;
    --orrelix-quiet: #55657a;
    --orrelix-link: #0b5cad;
}
@media (prefers-color-scheme: dark) {
    :root {
        --orrelix-ground: #14181d;
        --orrelix-card: #1e252d;
        --orrelix-line: #36414d;
        --orrelix-text: #e6ebf1;
        --orrelix-quiet: #9fb0c3;
        --orrelix-link: #7dbbf5;
    }
}
.orrelix-header {
    font: 1rem/1.5 system-ui, sans-serif;
    color: var(--orrelix-text);
}
.orrelix-header h1 {
    margin: 0;
    font-size: 1.5rem;
    line-height: 1.25;
}
.orrelix-header p {
    margin: .25rem 0 0;
    color: var(--orrelix-quiet);
}
)";

// The index frames a page as PAGE#effect, where its stage stands alone.
constexpr char kEffectStyle[] = R"(
.orrelix-page {
    background: var(--orrelix-ground);
}
.orrelix-page > body {
    margin: 0 auto;
    padding: clamp(1rem, 4vw, 2.5rem);
    max-width: 75rem;
}
.orrelix-header {
    margin-bottom: 1.5rem;
}
.orrelix-stage {
    color-scheme: light;
    min-height: 24rem;
    padding: 1.5rem;
    overflow: auto;
    border: 1px solid var(--orrelix-line);
    border-radius: .75rem;
    background: #fff;
    color: #000;
    box-shadow: 0 1px 3px rgb(0 0 0 / 12%);
}
.orrelix-page:target > body {
    max-width: none;
    padding: 0;
}
.orrelix-page:target .orrelix-header {
    display: none;
}
.orrelix-page:target .orrelix-stage {
    border: 0;
    border-radius: 0;
    box-shadow: none;
    box-sizing: border-box;
    min-height: 100vh;
}
)";

// A picture is a page larger than its card, made smaller.
constexpr char kIndexStyle[] = R"(
body {
    margin: 0 auto;
    padding: clamp(1rem, 4vw, 2.5rem);
    max-width: 90rem;
    background: var(--orrelix-ground);
    color: var(--orrelix-text);
    font: 1rem/1.5 system-ui, sans-serif;
}
main {
    display: grid;
    grid-template-columns: repeat(auto-fill, minmax(min(24rem, 100%), 1fr));
    gap: 1.5rem;
    margin-top: 2rem;
}
article {
    display: flex;
    flex-direction: column;
    overflow: hidden;
    border: 1px solid var(--orrelix-line);
    border-radius: .75rem;
    background: var(--orrelix-card);
    box-shadow: 0 1px 3px rgb(0 0 0 / 12%);
}
.picture {
    aspect-ratio: 16 / 10;
    overflow: hidden;
    border-bottom: 1px solid var(--orrelix-line);
    background: #fff;
}
iframe {
    width: 160%;
    height: 160%;
    border: 0;
    transform: scale(.625);
    transform-origin: 0 0;
}
.about {
    display: flex;
    flex: 1;
    flex-direction: column;
    padding: 1rem 1.25rem 1.25rem;
}
h2 {
    margin: 0;
    font-size: 1.125rem;
}
.about p {
    flex: 1;
    margin: .25rem 0 .75rem;
    color: var(--orrelix-quiet);
}
a {
    color: var(--orrelix-link);
}
)";

std::string Escaped(std::string_view text) {
    std::string result;
    for (char byte : text) {
        switch (byte) {
        case '&':
            result += "&amp;";
            break;
        case '<':
            result += "&lt;";
            break;
        case '>':
            result += "&gt;";
            break;
        case '"':
            result += "&quot;";
            break;
        default:
            result += byte;
        }
    }
    return result;
}

// A file's name as an address in UTF-8.
std::string AddressOf(std::string_view name) {
    constexpr std::string_view kPlain = "-._~";
    constexpr char kDigits[] = "0123456789ABCDEF";
    std::string result;
    for (char byte : name) {
        const auto code = static_cast<unsigned char>(byte);
        const bool bPlain = (byte >= '0' && byte <= '9') || (byte >= 'a' && byte <= 'z') ||
                            (byte >= 'A' && byte <= 'Z') || kPlain.find(byte) != std::string_view::npos;
        result += bPlain ? std::string(1, byte) : std::string("%") + kDigits[code >> 4] + kDigits[code & 15];
    }
    return result;
}

// The effect's kind and, where the file gives one, its title.
std::string HeadingOf(const CPreviewPage& page) {
    const std::string& name = page.m_Effect.m_Effect;
    return page.m_Effect.m_Title.IsEmpty() ? name : name + ": " + Escaped(page.m_Effect.m_Title.View());
}

// A pattern that begins on a line of its own, with its fields.
template <class... TField>
std::string Fill(fmt::format_string<TField...> pattern, TField&&... fields) {
    return fmt::format(pattern, std::forward<TField>(fields)...).substr(1);
}

// A page of our own around what stands in its body.
std::string Page(std::string_view attributes, std::string_view label, std::string_view title,
                 std::string_view style, std::string_view script, std::string_view body) {
    return Fill(R"(
<!DOCTYPE html>
<html lang="en"{}>
<head>
<meta charset="{}">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>{}</title>
<style>{}{}</style>
{}</head>
<body>
{}</body>
</html>
)",
                attributes, label, title, kSharedStyle, style, script, body);
}

// Text of the code page with a charset that browsers know: the code page's own, or else UTF-8.
template <class TMake>
std::string InKnownCharset(TMake make) {
    const std::string charset = GetCharset();
    return charset.empty() ? ToUtf8(make("utf-8")).m_Text : make(charset);
}

} // namespace

std::string EffectPage(const CPreviewPage& page) {
    return InKnownCharset([&](const std::string& label) {
        const CGeneratedEffect& effect = page.m_Effect;
        const std::string heading = HeadingOf(page);
        const std::string body = Fill(R"(
<header class="orrelix-header">
<h1>{}</h1>
<p>{}</p>
</header>
<main class="orrelix-stage">
{}</main>
)",
                                      heading, Escaped(effect.m_Description), effect.m_Cursor.View());
        return Page(R"( class="orrelix-page" id="effect")", label, heading, kEffectStyle,
                    effect.m_Script.View(), body);
    });
}

std::string IndexCard(const CPreviewPage& page) {
    const std::string heading = HeadingOf(page);
    const std::string address = AddressOf(page.m_Name);
    return Fill(R"(
<article>
<div class="picture"><iframe src="{}#effect" title="{}" loading="lazy"></iframe></div>
<div class="about">
<h2>{}</h2>
<p>{}</p>
<a href="{}">Open {}</a>
</div>
</article>
)",
                address, heading, heading, Escaped(page.m_Effect.m_Description), address, address);
}

std::string IndexPage(const std::vector<std::string>& cards) {
    return InKnownCharset([&](const std::string& label) {
        const std::string body = Fill(R"(
<header class="orrelix-header">
<h1>Effects</h1>
<p>{}, each running in its own page.</p>
</header>
<main>
{}</main>
)",
                                      Counted(cards.size(), "effect"), fmt::join(cards, ""));
        return Page("", label, "Effects", kIndexStyle, "", body);
    });
}

} // namespace orrelix

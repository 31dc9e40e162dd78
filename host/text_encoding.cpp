#include "host/text_encoding.h"

#include "platform/string.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <iconv.h>
#include <iterator>
#include <optional>
#include <stdexcept>
#include <vector>

namespace orrelix {

namespace {

constexpr char32_t kReplacement = 0xFFFD;
constexpr char kSwitching[] = "ISO-2022-JP"; // between character sets, by escapes

// A conversion in progress, which remembers the state of encodings that have one.
class CConverter {
public:
    CConverter(const std::string& from, const std::string& to)
        : m_Converter(iconv_open(to.c_str(), from.c_str())) {}
    ~CConverter() {
        if (IsOpen())
            iconv_close(m_Converter);
    }
    CConverter(const CConverter&) = delete;
    CConverter& operator=(const CConverter&) = delete;

    bool IsOpen() const { return m_Converter != reinterpret_cast<iconv_t>(-1); }

    // Appends what can be converted and takes it off the input. 0, or why it stopped: EILSEQ before what
    // can't be converted, EINVAL before what is cut off.
    int Convert(std::string_view& input, std::string& output) {
        char* pInput = const_cast<char*>(input.data());
        size_t nInput = input.size();
        const int nError = Run(&pInput, &nInput, output);
        input.remove_prefix(input.size() - nInput);
        return nError;
    }

    // Appends what brings the output back to its first state.
    void Finish(std::string& output) { Run(nullptr, nullptr, output); }

private:
    int Run(char** ppInput, size_t* pnInput, std::string& output) {
        char block[16 * 1024];
        for (;;) {
            char* pBlock = block;
            size_t nFree = sizeof block;
            const size_t nResult = iconv(m_Converter, ppInput, pnInput, &pBlock, &nFree);
            const int nError = nResult == static_cast<size_t>(-1) ? errno : 0;
            output.append(block, sizeof block - nFree);
            if (nError != E2BIG)
                return nError;
        }
    }

    iconv_t m_Converter;
};

bool IsAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(),
                       [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

std::string_view BytesOf(const char32_t& character) {
    return {reinterpret_cast<const char*>(&character), sizeof character};
}

constexpr const char* kCharacters = __BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__ ? "UTF-32LE" : "UTF-32BE";

// The characters with which this encoding changes its state. Within a text they have no place in it, as in browsers.
void ReplaceEscapes(std::string& characters) {
    for (size_t nAt = 0; nAt < characters.size(); nAt += sizeof(char32_t)) {
        for (const char32_t escape : {U'\x0E', U'\x0F', U'\x1B'}) {
            if (characters.compare(nAt, sizeof escape, BytesOf(escape)) == 0)
                characters.replace(nAt, sizeof escape, BytesOf(kReplacement));
        }
    }
}

// Encodes characters, those that don't fit as references.
void Encode(CConverter& encoder, std::string_view characters, CConvertedText& result) {
    while (encoder.Convert(characters, result.m_Text) != 0) {
        char32_t character = 0;
        std::copy_n(characters.data(), sizeof character, reinterpret_cast<char*>(&character));
        characters.remove_prefix(sizeof character);
        ++result.m_nUnfit;
        for (char digit : "&#" + std::to_string(static_cast<std::uint32_t>(character)) + ";") {
            const char32_t wide = static_cast<unsigned char>(digit);
            std::string_view bytes = BytesOf(wide);
            encoder.Convert(bytes, result.m_Text);
        }
    }
}

// The labels that browsers know, each between blanks, by iconv's name for what they take where a tag says it: a page
// whose tags are in ASCII is in no UTF-16.
constexpr struct {
    const char* m_pLabels;
    const char* m_pEncoding;
} kLabels[] = {
    {" unicode-1-1-utf-8 unicode11utf8 unicode20utf8 utf-8 utf8 x-unicode20utf8 utf-16 utf-16le utf-16be "
     "csunicode iso-10646-ucs-2 ucs-2 unicode unicodefeff unicodefffe ",
     "UTF-8"},
    {" 866 cp866 csibm866 ibm866 ", "CP866"},
    {" csisolatin2 iso-8859-2 iso-ir-101 iso8859-2 iso88592 iso_8859-2 iso_8859-2:1987 l2 latin2 ",
     "ISO-8859-2"},
    {" csisolatin3 iso-8859-3 iso-ir-109 iso8859-3 iso88593 iso_8859-3 iso_8859-3:1988 l3 latin3 ",
     "ISO-8859-3"},
    {" csisolatin4 iso-8859-4 iso-ir-110 iso8859-4 iso88594 iso_8859-4 iso_8859-4:1988 l4 latin4 ",
     "ISO-8859-4"},
    {" csisolatincyrillic cyrillic iso-8859-5 iso-ir-144 iso8859-5 iso88595 iso_8859-5 iso_8859-5:1988 ",
     "ISO-8859-5"},
    {" arabic asmo-708 csiso88596e csiso88596i csisolatinarabic ecma-114 iso-8859-6 iso-8859-6-e "
     "iso-8859-6-i iso-ir-127 iso8859-6 iso88596 iso_8859-6 iso_8859-6:1987 ",
     "ISO-8859-6"},
    {" csisolatingreek ecma-118 elot_928 greek greek8 iso-8859-7 iso-ir-126 iso8859-7 iso88597 iso_8859-7 "
     "iso_8859-7:1987 sun_eu_greek ",
     "ISO-8859-7"},
    {" csiso88598e csiso88598i csisolatinhebrew hebrew iso-8859-8 iso-8859-8-e iso-8859-8-i iso-ir-138 "
     "iso8859-8 iso88598 iso_8859-8 iso_8859-8:1988 logical visual ",
     "ISO-8859-8"},
    {" csisolatin6 iso-8859-10 iso-ir-157 iso8859-10 iso885910 l6 latin6 ", "ISO-8859-10"},
    {" iso-8859-13 iso8859-13 iso885913 ", "ISO-8859-13"},
    {" iso-8859-14 iso8859-14 iso885914 ", "ISO-8859-14"},
    {" csisolatin9 iso-8859-15 iso8859-15 iso885915 iso_8859-15 l9 ", "ISO-8859-15"},
    {" iso-8859-16 ", "ISO-8859-16"},
    {" cskoi8r koi koi8 koi8-r koi8_r ", "KOI8-R"},
    {" koi8-ru koi8-u ", "KOI8-U"},
    {" csmacintosh mac macintosh x-mac-roman ", "MACINTOSH"},
    {" x-mac-cyrillic x-mac-ukrainian ", "MAC-CYRILLIC"},
    {" dos-874 iso-8859-11 iso8859-11 iso885911 tis-620 windows-874 ", "CP874"},
    {" cp1250 windows-1250 x-cp1250 ", "CP1250"},
    {" cp1251 windows-1251 x-cp1251 ", "CP1251"},
    {" ansi_x3.4-1968 ascii cp1252 cp819 csisolatin1 ibm819 iso-8859-1 iso-ir-100 iso8859-1 iso88591 "
     "iso_8859-1 iso_8859-1:1987 l1 latin1 us-ascii windows-1252 x-cp1252 x-user-defined ",
     "CP1252"},
    {" cp1253 windows-1253 x-cp1253 ", "CP1253"},
    {" cp1254 csisolatin5 iso-8859-9 iso-ir-148 iso8859-9 iso88599 iso_8859-9 iso_8859-9:1989 l5 latin5 "
     "windows-1254 x-cp1254 ",
     "CP1254"},
    {" cp1255 windows-1255 x-cp1255 ", "CP1255"},
    {" cp1256 windows-1256 x-cp1256 ", "CP1256"},
    {" cp1257 windows-1257 x-cp1257 ", "CP1257"},
    {" cp1258 windows-1258 x-cp1258 ", "CP1258"},
    {" chinese csgb2312 csiso58gb231280 gb2312 gb_2312 gb_2312-80 gbk iso-ir-58 x-gbk ", "CP936"},
    {" gb18030 ", "GB18030"},
    {" big5 big5-hkscs cn-big5 csbig5 x-x-big5 ", "CP950"},
    {" cseucpkdfmtjapanese euc-jp x-euc-jp ", "EUC-JP"},
    {" csiso2022jp iso-2022-jp ", kSwitching},
    {" csshiftjis ms932 ms_kanji shift-jis shift_jis sjis windows-31j x-sjis ", "CP932"},
    {" cseuckr csksc56011987 euc-kr iso-ir-149 korean ks_c_5601-1987 ks_c_5601-1989 ksc5601 ksc_5601 "
     "windows-949 ",
     "CP949"},
};

} // namespace

bool IsConvertible(const std::string& encoding) {
    return CConverter(encoding, kCharacters).IsOpen() && CConverter(kCharacters, encoding).IsOpen();
}

std::string EncodingOfLabel(std::string_view label) {
    const std::string name(CString(label).MakeLower().View());
    if (name.find(' ') != std::string::npos)
        return {};
    const auto row = std::find_if(std::begin(kLabels), std::end(kLabels), [&name](const auto& candidate) {
        return std::string_view(candidate.m_pLabels).find(" " + name + " ") != std::string_view::npos;
    });
    return row != std::end(kLabels) && IsConvertible(row->m_pEncoding) ? row->m_pEncoding : "";
}

CConvertedText ConvertText(std::string_view text, const std::string& from, const std::string& to) {
    if (from == "UTF-8" && to == "UTF-8" && IsAscii(text))
        return {std::string(text)};
    CConverter decoder(from, kCharacters);
    CConverter encoder(kCharacters, to);
    if (!decoder.IsOpen() || !encoder.IsOpen())
        throw std::runtime_error("text can't be converted from " + from + " to " + to);
    constexpr size_t kPortion = 64 * 1024;
    CConvertedText result;
    result.m_Text.reserve(text.size());
    std::string characters;
    for (;;) {
        // In portions, so that the characters, four bytes each, never stand in memory all at once. What a
        // portion's end cuts off is the next one's beginning.
        std::string_view portion = text.substr(0, kPortion);
        const size_t nPortion = portion.size();
        const int nError = decoder.Convert(portion, characters);
        text.remove_prefix(nPortion - portion.size());
        const bool bCutOff = nError == EINVAL && text.size() > portion.size();
        if (nError != 0 && !bCutOff) {
            characters += BytesOf(kReplacement);
            ++result.m_nInvalid;
            text.remove_prefix(1);
        }
        // Some decoders hold a letter back until they know that no accent follows.
        if (text.empty())
            decoder.Finish(characters);
        if (to == kSwitching)
            ReplaceEscapes(characters);
        Encode(encoder, characters, result);
        characters.clear();
        if (text.empty())
            break;
    }
    encoder.Finish(result.m_Text);
    return result;
}

CConvertedText ToUtf8(std::string_view text) {
    return ConvertText(text, GetEncoding(), "UTF-8");
}

} // namespace orrelix

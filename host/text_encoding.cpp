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

std::string_view BytesOf(const char32_t& character) {
    return {reinterpret_cast<const char*>(&character), sizeof character};
}

constexpr const char* kCharacters = __BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__ ? "UTF-32LE" : "UTF-32BE";

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

// The labels for which browsers use another encoding than the one of that name, or whose name iconv hasn't.
constexpr struct {
    const char* m_pLabels; // each between blanks
    const char* m_pEncoding;
} kLabels[] = {
    {" utf-8 utf8 unicode-1-1-utf-8 utf-16 utf-16le utf-16be ", "UTF-8"},
    {" ascii us-ascii ansi_x3.4-1968 iso-8859-1 iso8859-1 iso_8859-1 latin1 l1 cp1252 x-cp1252 windows-1252 ",
     "CP1252"},
    {" iso-8859-9 iso8859-9 latin5 windows-1254 cp1254 ", "CP1254"},
    {" iso-8859-11 tis-620 dos-874 windows-874 ", "CP874"},
    {" gb2312 gbk x-gbk gb_2312 gb_2312-80 csgb2312 csiso58gb231280 iso-ir-58 chinese cp936 ", "CP936"},
    {" shift_jis shift-jis sjis x-sjis ms_kanji ms932 windows-31j csshiftjis cp932 ", "CP932"},
    {" euc-kr ks_c_5601-1987 ks_c_5601-1989 ksc5601 ksc_5601 korean windows-949 cseuckr cp949 iso-ir-149 "
     "csksc56011987 ",
     "CP949"},
    {" euc-jp x-euc-jp cseucpkdfmtjapanese ", "EUC-JP"},
    {" iso-2022-jp csiso2022jp ", "ISO-2022-JP"},
    {" iso-8859-6-e iso-8859-6-i csiso88596e csiso88596i ", "ISO-8859-6"},
    {" iso-8859-8-e iso-8859-8-i csiso88598e csiso88598i logical visual ", "ISO-8859-8"},
    {" sun_eu_greek ", "ISO-8859-7"},
    {" l9 csisolatin9 ", "ISO-8859-15"},
    {" big5 big5-hkscs cn-big5 csbig5 x-x-big5 cp950 ", "CP950"},
    {" ibm866 cp866 866 csibm866 ", "CP866"},
    {" koi8-r koi koi8 koi8_r cskoi8r ", "KOI8-R"},
    {" macintosh mac x-mac-roman csmacintosh ", "MACINTOSH"},
    {" x-mac-cyrillic x-mac-ukrainian ", "MAC-CYRILLIC"},
};

// Whether ASCII text is the same bytes in the encoding.
bool HoldsAscii(const std::string& encoding) {
    std::string ascii;
    for (char character = ' '; character < 0x7F; ++character)
        ascii += character;
    return ConvertText(ascii, "UTF-8", encoding).m_Text == ascii;
}

} // namespace

bool IsConvertible(const std::string& encoding) {
    return CConverter(encoding, kCharacters).IsOpen() && CConverter(kCharacters, encoding).IsOpen();
}

std::string EncodingOfLabel(std::string_view label) {
    std::string name(CString(label).MakeLower().View());
    if (name.find_first_not_of("abcdefghijklmnopqrstuvwxyz0123456789-_.:") != std::string::npos)
        return {};
    for (const auto& row : kLabels) {
        if (std::string_view(row.m_pLabels).find(" " + name + " ") != std::string_view::npos)
            return row.m_pEncoding;
    }
    for (std::string_view prefix : {"windows-", "x-cp"}) {
        if (name.starts_with(prefix))
            name.replace(0, prefix.size(), "cp");
    }
    // In upper case, like the encodings of code pages.
    std::transform(name.begin(), name.end(), name.begin(), [](char byte) {
        return byte >= 'a' && byte <= 'z' ? static_cast<char>(byte - 'a' + 'A') : byte;
    });
    return !name.empty() && IsConvertible(name) && HoldsAscii(name) ? name : "";
}

CConvertedText ConvertText(std::string_view text, const std::string& from, const std::string& to) {
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

// The system's code page: which bytes of a text are a character of their own, and which are the second half
// of one.
//
// Text is bytes throughout the component and is never converted. All that has to be known of its encoding is
// where a byte that looks like a backslash, a comma or a bar belongs to a two-byte character. UTF-8 and the
// single-byte pages have no such bytes; pages 932, 936, 949 and 950 do. The searches that know of it are in platform/string.h.
#pragma once

#include <string>

namespace orrelix {

// Selects the page for the whole process: 65001 (UTF-8, in force at start), 932, 936, 949, 950, or a
// single-byte page (437, 737, 775, 850 to 869, 874, 1250 to 1258, 20866, 21866, 28591 to 28605). False for
// any other number, which changes nothing.
bool SetCodePage(int nCodePage);

int GetCodePage();

// UTF-8's number.
inline constexpr int kUtf8CodePage = 65001;

// The name by which converters of text know the page in force, such as "CP936" or "ISO-8859-2".
std::string GetEncoding();

// The name by which web pages say that they are in it, such as "gbk"; empty when browsers know none.
std::string GetCharset();

// Whether the page in force has two-byte characters whose second byte may be below 0x80.
bool HasTrailBytes();

// Whether the two bytes form one character of the page in force. A lead byte that no valid trail byte follows
// stands alone, so damaged text loses no separator.
bool IsTwoByteCharacter(unsigned char first, unsigned char second);

} // namespace orrelix

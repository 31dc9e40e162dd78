// Texts on their way between the component, which holds bytes in the system's code page, and Qt.
#pragma once

#include "platform/string.h"

#include <QString>

namespace orrelix {

// A byte that is no character in UTF-8 becomes a lone surrogate, which FromQt turns back into the byte, so
// that no text loses a byte by being shown and edited.
QString ToQt(const CString& text);
// A character that the code page lacks becomes "?".
CString FromQt(const QString& text);

// The same for several lines: CR LF in the component, one line feed in Qt.
QString LinesToQt(const CString& text);
CString LinesFromQt(QString text);

// The same for paths: backslashes in the component, slashes in Qt.
QString PathToQt(const CString& path);
CString PathFromQt(QString path);

// The text of a tool tip that shows the text as it is, whatever marks are in it.
QString PlainTip(const QString& text);

// A caption as Qt wants it: the description's, with its mnemonic, as long as the control still shows it; else
// the control's own text, in which "&" is a plain character.
QString CaptionToQt(const char* pDescribed, const CString& shown);

} // namespace orrelix

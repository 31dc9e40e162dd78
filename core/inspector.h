// CInspector: what hosts need beside COrrelix's own members to work without dialogs: the effects and their fields by
// name, a file as it was read, and the files that a page needs. Late-bound hosts get it as a second interface of the
// same object (VignelIidInspector).
#pragma once

#include "core/dispatch.h"
#include "core/fields.h"
#include "core/orrelix.h"
#include "core/published_files.h"

#include <vector>

namespace orrelix {

class CInspector {
public:
    explicit CInspector(COrrelix& orrelix) : m_Orrelix(orrelix) {}

    // The effects, by name, in the order of their types. The effect of the object: empty when none is chosen or the
    // file named another. Setting it chooses it as the first dialog does; letters of either case will do.
    CItems GetEffectNames() const;
    CItems GetEffectDescriptions() const;
    CString GetEffect() const;
    void SetEffect(const CString& name);
    // "0" to "9", or what the file said.
    CString GetEffectType() const { return m_Orrelix.m_Type; }

    // The fields of the effect, by their names. Where a member takes a field's name, "m_" in front may be left out, and
    // a name of none is refused. See core/fields.h for what the kinds are; a file's value is the system's path.
    CItems GetFieldNames();
    CString GetFieldKind(const CString& field);
    bool IsFieldList(const CString& field);
    CItems GetFieldChoices(const CString& field);
    int GetFieldMinimum(const CString& field);
    int GetFieldMaximum(const CString& field);
    CString GetField(const CString& field);
    CItems GetFieldItems(const CString& field);
    // Whether a file brings commas of the field's values back. Of another field's value, a comma, or the "~@^`" that stands
    // for one, ends it there, and shifts the fields behind it. Of a file the name alone counts.
    bool KeepsCommas(const CString& field);

    // Sets a field and what derives from it. The result is empty, or a sentence: the value is set, but a file will not
    // bring it back. A value that the field can't have is refused.
    CString SetField(const CString& field, const CString& value);
    // Sets a list. All lists of an effect are columns of the same items, and get as many as are given here; of those
    // that aren't m_Texts, no fewer than there are texts.
    CString SetFieldItems(const CString& field, const CItems& items);

    // The same as a file would: the value as it is, whatever it is, and nothing that derives from it.
    void PutField(const CString& field, const CString& value);
    void PutFieldItems(const CString& field, const CItems& items);

    // All that the fields hold as one list: of each, in the order of their names, how many values it has, and those up
    // to a zero byte. Putting such a list makes the effect's lists as long as the longest that it has; what is of
    // another form is refused.
    CItems GetAllFields();
    void PutAllFields(const CItems& values);

    // The file that was read last, since a host asked for this interface: its keys in the order of the file, its records as they were read, and what is wrong
    // with its form, a sentence's rest each. What a file doesn't have is empty.
    CItems GetDescriptionKeys();
    CString GetDescriptionValue(const CString& key);
    CItems GetParameterKeys();
    CString GetParameterValue(const CString& key);
    int GetStoredResourceNumber() { return static_cast<int>(m_Orrelix.m_Config.m_Resources.GetSize()); }
    // Its name, its local path, its web path.
    CItems GetStoredResource(int nIndex);
    int GetSegmentNumber() { return static_cast<int>(m_Orrelix.m_Config.m_Segments.GetSize()); }
    CString GetSegmentPosition(int nIndex);
    CString GetSegmentBody(int nIndex);
    CItems GetDamage();
    // Why no effect has come from the file, a sentence's rest; empty when one has.
    CString GetProblem();
    // Whether anything of the file was recognised.
    bool IsConfigFile() const { return Form().m_nMarkers > 0; }
    // The system's sentence for what kept the last file from being read or written, or the last dialogs from being shown
    // to their end; empty for nothing.
    CString GetError();

    // The files that the effect's page needs, as they were when GetPageFileNumber looked for them: where each lies; its directory
    // as the page's text has it, empty or ending in "/"; its name and the other spellings of it in the text, because a
    // web server may tell case apart. An effect with very many spellings of one name is refused.
    int GetPageFileNumber();
    CPath GetPageFileSource(int nIndex);
    CString GetPageFileWebPath(int nIndex);
    CItems GetPageFileNames(int nIndex);
    // Files that the text refers to and that are not there any more.
    CItems GetLostFiles();
    // Whether the effect has no script file of its own, so that the page must load orrelix-compat.js.
    bool NeedsCompatibilityScript();

    // Where the component's script files lie.
    CPath GetScriptFolder() const;
    void SetScriptFolder(const CPath& folder);
    // See platform/code_page.h; holds for the process. One that isn't known is refused.
    int GetCodePageNumber() const;
    void SetCodePageNumber(int nCodePage);
    // Whether texts cross as the bytes that they are: each that is UTF-8 as such, whatever the code page, and any other
    // byte as U+DC80 to U+DCFF.
    bool GetRawTexts() const;
    void SetRawTexts(short bRaw);

    // The most bytes of HTML that are made at once; 0 for as many as there is memory for. Holds for the process. What
    // would take more is refused before it is made.
    int GetMostHtml() const;
    void SetMostHtml(int nBytes);

    bool CanShowDialogs() const;
    // The host's window, on top of which the dialogs open: the number by which the window system knows it, in decimal;
    // empty for none.
    CString GetOwnerWindow() const;
    void SetOwnerWindow(const CString& window);

    // A text of the component's by its id, and the file of its icon in a size in pixels, 0 for the drawing that has
    // none. nInstance is what GetResourceInstance gives. Empty for what there isn't.
    CString GetText(int nInstance, int nId) const;
    CPath GetIconFile(int nInstance, int nId, int nSize) const;

private:
    CDhtmlGadget& Gadget() { return *m_Orrelix.m_pGadget; }
    const CConfigForm& Form() const { return m_Orrelix.m_Form; }
    CFieldType FieldTypeOf(const CString& field);
    void SetItems(const CString& field, const CItems& items);
    CString RemarkOn(const CString& field);
    CStringArray::Index ItemsBeside(const std::vector<CNamedField>& fields, const CNamedField& field,
                                    const CItems& items) const;
    void CountRecords(CItems& damage, const char* pNoun, long nPromised, long nThere);

    COrrelix& m_Orrelix;
    CPageFiles m_PageFiles;
};

std::span<const CMember> GetInspectorMembers();

} // namespace orrelix

// The contract of all effects, and what they share.
//
// A gadget is one page effect: a class that holds the user's settings as texts, packs them into the Parameter
// Part of a configuration file and unpacks them again, generates the HTML, and names and copies the files
// that the HTML needs. COrrelix owns one of each and works on the current one through CDhtmlGadget only.
#pragma once

#include "core/html_text.h"
#include "core/parameters.h"
#include "core/vignel_config.h"
#include "platform/array.h"
#include "platform/string.h"

#include <memory>
#include <type_traits>
#include <utility>

namespace orrelix {

// How generated text refers to script and image files. Hosts may give any other number: such text refers to
// no script.
enum EHtmlMode : short {
    kPreview = 0, // by the store's preview path, which the host gives with its separator at the end
    kPublish = 1, // by the gadget's remote directories
};

class CDhtmlGadget {
public:
    virtual ~CDhtmlGadget() = default;

    // The HTML of one segment. Of a gadget with two, a position other than 0 asks for the one that belongs
    // with the page's scripts and 0 for the one at the cursor; a gadget with one has the same text for all. A
    // text that isn't empty ends in CR LF. Properties of the store that the text doesn't use are not looked
    // at.
    virtual CString GetHTMLBody(CVignelConfig& config, short mode, short position) = 0;

    // Puts the files that the page needs into a directory, given with a backslash at its end. Script files
    // are copied over what is there. A user's file that would land on another of its name is asked about,
    // unless `force` isn't 0. A copy that fails is not reported.
    virtual void CopyResources(const CString& directory, short force) = 0;

    // Fills the fields from the Parameter Part. `directory` is that of the configuration file, with a
    // backslash at its end; it goes in front of the names of image files. Always true.
    virtual bool ReadParameters(CVignelConfig& config, const CString& directory) = 0;

    // Replaces the store's resources by those of this gadget; the result is their number.
    virtual short RegisterResources(CVignelConfig& config) = 0;

    virtual void WriteParameters(CVignelConfig& config) = 0;

    // 1 or 2.
    virtual short GetHTMLSegmentNumber() = 0;

    // Says of each field where it lives in the Parameter Part.
    virtual void ExchangeParameters(CParameterExchange&) {}

    // A copy of the fields, and the taking over of a copy's, which can't fail.
    virtual std::unique_ptr<CDhtmlGadget> Copy() const = 0;
    virtual void Take(CDhtmlGadget& copy) noexcept = 0;

protected:
    // What most gadgets' ReadParameters and WriteParameters are: all fields, as ExchangeParameters places
    // them. The directory, with a backslash at its end, goes in front of the names of user's files.
    bool ReadFields(const CVignelConfig& config, const CString& directory = {});
    void WriteFields(CVignelConfig& config);
};

// What a gadget's class is derived from.
template <class TGadget>
class CGadget : public CDhtmlGadget {
public:
    std::unique_ptr<CDhtmlGadget> Copy() const override {
        return std::make_unique<TGadget>(static_cast<const TGadget&>(*this));
    }
    void Take(CDhtmlGadget& copy) noexcept override {
        static_assert(std::is_nothrow_move_assignable_v<TGadget>);
        static_cast<TGadget&>(*this) = std::move(static_cast<TGadget&>(copy));
    }
};

inline bool RefersToScripts(short mode) {
    return mode == kPreview || mode == kPublish;
}

// The directory by which a text of this mode refers to files: the store's preview path, or the remote
// directory. Other modes have none.
CString DirectoryOfMode(CVignelConfig& config, short mode, const CString& remoteDirectory);

} // namespace orrelix

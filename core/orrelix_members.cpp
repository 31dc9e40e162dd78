#include "core/orrelix_members.h"

#include "core/orrelix.h"

namespace orrelix {

namespace {

constexpr CMember kMembers[] = {
    Property<&COrrelix::GetProgID, &COrrelix::SetProgID>("ProgID"),
    Property<&COrrelix::GetTitle, &COrrelix::SetTitle>("Title"),
    Property<&COrrelix::GetDescription, &COrrelix::SetDescription>("Description"),
    Property<&COrrelix::GetBitmapFileName, &COrrelix::SetBitmapFileName>("BitmapFileName"),
    Property<&COrrelix::GetPreviewPath, &COrrelix::SetPreviewPath>("PreviewPath"),
    Property<&COrrelix::GetLastUpdateTime, &COrrelix::SetLastUpdateTime>("LastUpdateTime"),
    Method<&COrrelix::ReadConfigFile>("ReadConfigFile"),
    Method<&COrrelix::WriteConfigFile>("WriteConfigFile"),
    Method<&COrrelix::Config>("Config"),
    Method<&COrrelix::GetVignelTypeID>("GetVignelTypeID"),
    Method<&COrrelix::GetVignelNameID>("GetVignelNameID"),
    Method<&COrrelix::GetMenuTextID>("GetMenuTextID"),
    Method<&COrrelix::GetMessageTextID>("GetMessageTextID"),
    Method<&COrrelix::GetTipsTextID>("GetTipsTextID"),
    Method<&COrrelix::GetIconID>("GetIconID"),
    Method<&COrrelix::GetHTMLSegmentNumber>("GetHTMLSegmentNumber"),
    Method<&COrrelix::GetHTMLPosition>("GetHTMLPosition"),
    Method<&COrrelix::GetHTMLBody>("GetHTMLBody"),
    Method<&COrrelix::GetResourceInstance>("GetResourceInstance"),
    Method<&COrrelix::GetResourceNumber>("GetResourceNumber"),
    Method<&COrrelix::GetResourceName>("GetResourceName"),
    Method<&COrrelix::GetResourceLocalPath>("GetResourceLocalPath"),
    Method<&COrrelix::GetResourceWebPath>("GetResourceWebPath"),
    Method<&COrrelix::GetResourceLocalPathByName>("GetResourceLocalPathByName"),
    Method<&COrrelix::GetResourceWebPathByName>("GetResourceWebPathByName"),
    Method<&COrrelix::SetResourceLocalPath>("SetResourceLocalPath"),
    Method<&COrrelix::WriteConfigFileEx>("WriteConfigFileEx"),
};

} // namespace

std::span<const CMember> GetOrrelixMembers() {
    return kMembers;
}

} // namespace orrelix

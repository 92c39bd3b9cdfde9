// Ids of the add-in's four command definitions. A command and its toolbar control carry the id of their definition.
#pragma once

namespace tintora {

inline constexpr const char* mainCommandId = "idAssetsMatMng";
inline constexpr const char* mainCommandOnToolsId = "idAssetsMatMngOnTools";
inline constexpr const char* helpCommandId = "idOpenHelp";
inline constexpr const char* helpCommandOnToolsId = "idOpenHelpOnTools";

}  // namespace tintora

// The ids of the dialog's inputs and of the toolbar's buttons that the program uses.
#pragma once

namespace headless::cli::ids {

inline constexpr const char* mainButton = "idAssetsMatMng";
inline constexpr const char* helpButton = "idOpenHelp";

inline constexpr const char* selectionGroup = "idGroupSelect";
inline constexpr const char* selection = "idSelection";
inline constexpr const char* filterRow = "idFilterSelect";
inline constexpr const char* appearanceGroup = "idGroupAppearance";
inline constexpr const char* appearanceText = "idActAppearance";
inline constexpr const char* appearanceLibraries = "idLibAssets";
inline constexpr const char* appearances = "idAppearanceList";
inline constexpr const char* appearanceFilter = "idFilterAppearance";
inline constexpr const char* removeButton = "idRemoveAssignAppearance";
inline constexpr const char* materialGroup = "idGroupMaterial";
inline constexpr const char* materialText = "idActMaterial";
inline constexpr const char* appearanceByMaterial = "idKeepAppearance";
inline constexpr const char* materialLibraries = "idLibMaterials";
inline constexpr const char* materials = "idMaterialList";
inline constexpr const char* materialFilter = "idFilterMaterial";
inline constexpr const char* applyButton = "idBtnApply";

}  // namespace headless::cli::ids

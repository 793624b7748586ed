// What happens when the host starts the plug-in and shuts it down.
#include "Gradient/tool/Lifecycle.h"

#include "Gradient/PluginStrings.h"
#include "Gradient/TemplateUtil/TemplateStore.h"
#include "Gradient/tool/StoredGradient.h"
#include "Gradient/tool/Tool.h"
#include "host/Gradient.h"
#include "host/Strings.h"

void Init() {
    InitTool();
    InitDefaults();
    CStr255 folderName;
    GetIndString(folderName, kPluginStrings, kTemplateFolderString);
    InitTemplates(folderName);
}

void CleanUp() {
    CleanupMethods();
    SaveDefaults();
}

void InitGradientMethods() {
    for (std::int32_t index = 0; index < kNumGradObjIDs; ++index) {
        // No kind has anything to set up.
    }
}

void CleanupMethods() {
    for (std::int32_t index = 0; index < kNumGradObjIDs; ++index) {
        // No kind has anything to give back.
    }
}

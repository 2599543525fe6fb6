#pragma once

#include "Platform/Null/NullAccessibility.h"
#include "Platform/Null/NullApplications.h"
#include "Platform/Null/NullBadges.h"
#include "Platform/Null/NullCalendarStore.h"
#include "Platform/Null/NullClock.h"
#include "Platform/Null/NullDisplays.h"
#include "Platform/Null/NullDocuments.h"
#include "Platform/Null/NullFileChooser.h"
#include "Platform/Null/NullHotKeys.h"
#include "Platform/Null/NullHttpClient.h"
#include "Platform/Null/NullIdleTime.h"
#include "Platform/Null/NullLanguageModel.h"
#include "Platform/Null/NullLoginItem.h"
#include "Platform/Null/NullNotificationBanners.h"
#include "Platform/Null/NullNotificationLog.h"
#include "Platform/Null/NullPanels.h"
#include "Platform/Null/NullPointerGuard.h"
#include "Platform/Null/NullRemedies.h"
#include "Platform/Null/NullSecretStore.h"
#include "Platform/Null/NullSettingsStore.h"
#include "Platform/Null/NullShell.h"
#include "Platform/Null/NullSoundPlayer.h"
#include "Platform/Null/NullStatusArea.h"
#include "Platform/Null/NullSystemDock.h"
#include "Platform/Null/NullSystemLook.h"
#include "Platform/Null/NullTrash.h"
#include "Platform/Null/NullWindowPreviews.h"
#include "Ports/Platform.h"

#include <memory>

namespace fendrel {

/// A system on which nothing is available and nothing happens. Its folders have no names.
inline Platform nullPlatform() {
    return {
        .disk = std::make_unique<Worker>(QStringLiteral("disk")),
        .clock = std::make_unique<NullClock>(),
        .settings = std::make_unique<NullSettingsStore>(),
        .applications = std::make_unique<NullApplications>(),
        .accessibility = std::make_unique<NullAccessibility>(),
        .displays = std::make_unique<NullDisplays>(),
        .panels = std::make_unique<NullPanels>(),
        .systemDock = std::make_unique<NullSystemDock>(),
        .pointerGuard = std::make_unique<NullPointerGuard>(),
        .badges = std::make_unique<NullBadges>(),
        .previews = std::make_unique<NullWindowPreviews>(),
        .trash = std::make_unique<NullTrash>(),
        .hotKeys = std::make_unique<NullHotKeys>(),
        .look = std::make_unique<NullSystemLook>(),
        .statusArea = std::make_unique<NullStatusArea>(),
        .idleTime = std::make_unique<NullIdleTime>(),
        .shell = std::make_unique<NullShell>(),
        .remedies = std::make_unique<NullRemedies>(),
        .fileChooser = std::make_unique<NullFileChooser>(),
        .languageModel = std::make_unique<NullLanguageModel>(),
        .notificationLog = std::make_unique<NullNotificationLog>(),
        .notificationBanners = std::make_unique<NullNotificationBanners>(),
        .secrets = std::make_unique<NullSecretStore>(),
        .calendar = std::make_unique<NullCalendarStore>(),
        .documents = std::make_unique<NullDocuments>(),
        .loginItem = std::make_unique<NullLoginItem>(),
        .sounds = std::make_unique<NullSoundPlayer>(),
        .http = std::make_unique<NullHttpClient>(),
    };
}

} // namespace fendrel

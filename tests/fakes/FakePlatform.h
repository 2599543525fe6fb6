#pragma once

#include "Ports/Platform.h"
#include "fakes/FakeAccessibility.h"
#include "fakes/FakeApplications.h"
#include "fakes/FakeClock.h"
#include "fakes/FakeDisplays.h"
#include "fakes/FakeHttpClient.h"
#include "fakes/FakeIdleTime.h"
#include "fakes/FakeLanguageModel.h"
#include "fakes/FakeLook.h"
#include "fakes/FakePanels.h"
#include "fakes/FakeSettings.h"
#include "fakes/FakeShell.h"
#include "fakes/FakeStatusArea.h"

#include <QTemporaryDir>

#include <memory>

namespace fendrel {

/// A platform of fakes over a temporary home. The pointers stay good when `platform` is moved into what is
/// tested, for as long as that lives.
struct FakePlatform {
    FakePlatform() {
        platform.folders = {.data = home.filePath(QStringLiteral("data")),
                            .config = home.filePath(QStringLiteral("config")),
                            .crashes = home.filePath(QStringLiteral("crashes"))};
        platform.disk = std::make_unique<Worker>(QStringLiteral("disk"));
        put(platform.clock, clock);
        put(platform.settings, settings);
        put(platform.applications, applications);
        put(platform.accessibility, accessibility);
        put(platform.displays, displays);
        put(platform.panels, panels);
        put(platform.look, look);
        put(platform.statusArea, statusArea);
        put(platform.idleTime, idleTime);
        put(platform.shell, shell);
        put(platform.languageModel, languageModel);
        put(platform.http, http);
    }

    QTemporaryDir home; ///< outlives the disk worker's last write
    Platform platform{};
    FakeClock* clock{};
    FakeSettings* settings{};
    FakeApplications* applications{};
    FakeAccessibility* accessibility{};
    FakeDisplays* displays{};
    FakePanels* panels{};
    FakeLook* look{};
    FakeStatusArea* statusArea{};
    FakeIdleTime* idleTime{};
    FakeShell* shell{};
    FakeLanguageModel* languageModel{};
    FakeHttpClient* http{};

private:
    template<class Port, class Fake>
    static void put(std::unique_ptr<Port>& place, Fake*& pointer) {
        auto fake = std::make_unique<Fake>();
        pointer = fake.get();
        place = std::move(fake);
    }
};

} // namespace fendrel

#pragma once

#include "Platform/Null/NullPlatform.h"
#include "fakes/FakeAccessibility.h"
#include "fakes/FakeApplications.h"
#include "fakes/FakeClock.h"
#include "fakes/FakeDisplays.h"
#include "fakes/FakeHotKeys.h"
#include "fakes/FakeLanguageModel.h"
#include "fakes/FakeLook.h"
#include "fakes/FakePointerGuard.h"
#include "fakes/FakeSettings.h"
#include "fakes/FakeSounds.h"
#include "fakes/FakeSystemDock.h"

#include <QTemporaryDir>

#include <memory>

namespace fendrel {

/// A platform over a temporary home, of fakes where a test has something to tell or to ask. The pointers stay
/// good when `platform` is moved into what is tested, for as long as that lives.
struct FakePlatform {
    FakePlatform() {
        platform.folders = {.data = home.filePath(QStringLiteral("data")),
                            .config = home.filePath(QStringLiteral("config")),
                            .crashes = home.filePath(QStringLiteral("crashes"))};
        platform.isPeerOwnUser = [](int) { return true; };
        put(platform.clock, clock);
        put(platform.settings, settings);
        put(platform.applications, applications);
        put(platform.accessibility, accessibility);
        put(platform.displays, displays);
        put(platform.systemDock, systemDock);
        put(platform.pointerGuard, pointerGuard);
        put(platform.look, look);
        put(platform.languageModel, languageModel);
        put(platform.hotKeys, hotKeys);
        put(platform.sounds, sounds);
    }

    QTemporaryDir home; ///< outlives the disk worker's last write
    Platform platform = nullPlatform();
    FakeClock* clock{};
    FakeSettings* settings{};
    FakeApplications* applications{};
    FakeAccessibility* accessibility{};
    FakeDisplays* displays{};
    FakeSystemDock* systemDock{};
    FakePointerGuard* pointerGuard{};
    FakeLook* look{};
    FakeLanguageModel* languageModel{};
    FakeHotKeys* hotKeys{};
    FakeSounds* sounds{};

private:
    template<class Port, class Fake>
    static void put(std::unique_ptr<Port>& place, Fake*& pointer) {
        auto fake = std::make_unique<Fake>();
        pointer = fake.get();
        place = std::move(fake);
    }
};

} // namespace fendrel

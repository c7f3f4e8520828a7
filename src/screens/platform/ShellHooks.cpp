#include "screens/platform/ShellHooks.h"

namespace {

MainScreenHook& TheMainScreenHook() {
    static MainScreenHook hook;
    return hook;
}

FrameHook& TheFrameHook() {
    static FrameHook hook;
    return hook;
}

template <class Hook>
Hook Replace(Hook& slot, Hook hook) {
    Hook previous = std::move(slot);
    slot = std::move(hook);
    return previous;
}

}  // namespace

void ReturnToMainScreen(int button) {
    if (const MainScreenHook& hook = TheMainScreenHook()) hook(button);
}

MainScreenHook SetMainScreenHook(MainScreenHook hook) { return Replace(TheMainScreenHook(), std::move(hook)); }

void ShowFrameIfLoaded() {
    if (const FrameHook& hook = TheFrameHook()) hook();
}

FrameHook SetFrameHook(FrameHook hook) { return Replace(TheFrameHook(), std::move(hook)); }

import { browser, isFirefox } from "../shared/browser.js";
import { byId, element, follow, followSiteAccess, showJudgement, showMode } from "../shared/view.js";
import { connectionWords, privateWindowNote, privateWindowWords } from "../shared/wording.js";

follow(({ phase, reason, state, lastPage }) => {
    const { status, text } = connectionWords(phase);
    byId("status").textContent = status;
    byId("status").classList.toggle("connected", phase === "connected");
    byId("advice").textContent = text;
    byId("reason").hidden = phase !== "absent" || !reason;
    byId("reason").textContent = `The browser says: ${reason}`;
    showMode(byId("mode"), state);
    showJudgement(byId("judgement"), lastPage);
    byId("nothing").hidden = lastPage !== null;
    byId("nothing").textContent = state ? "No site has been in front yet." : "Fendrel tells its mode, and what it thinks of a site, when it is connected.";
});

async function showPrivateWindows() {
    const { kind, steps } = privateWindowWords(navigator.userAgent, isFirefox);
    const isAllowed = await browser.extension.isAllowedIncognitoAccess();
    byId("private-state").textContent = isAllowed
        ? `Fendrel works in ${kind} too, as you allowed. ${privateWindowNote}`
        : `Fendrel knows nothing of ${kind} unless you allow it. ${privateWindowNote} To allow it:`;
    byId("private-steps").hidden = isAllowed;
    byId("private-steps").replaceChildren(...steps.map(step => element("li", "", step)));
}

followSiteAccess(byId("access"), byId("allow"));
showPrivateWindows();
// The switch is on a page of the browser's own, and nothing tells that it was moved.
document.addEventListener("visibilitychange", showPrivateWindows);

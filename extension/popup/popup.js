import { browser } from "../shared/browser.js";
import { byId, follow, followSiteAccess, showJudgement, showMode } from "../shared/view.js";
import { connectionWords } from "../shared/wording.js";

const ask = follow(({ phase, state }) => {
    const isConnected = phase === "connected";
    const { status, text } = connectionWords(phase);
    byId("status").textContent = status;
    byId("status").classList.toggle("connected", isConnected);
    showMode(byId("mode"), state);
    showJudgement(byId("judgement"), state?.page ?? null);
    byId("ask").hidden = !state?.page;
    byId("advice").hidden = isConnected && Boolean(state?.page);
    byId("advice").textContent = isConnected ? "This page is of no site, so there is nothing to judge." : text;
});

byId("ask").addEventListener("click", () => {
    ask();
    window.close();
});
byId("options").addEventListener("click", event => {
    event.preventDefault();
    browser.runtime.openOptionsPage();
    window.close();
});
followSiteAccess(byId("access"), byId("allow"));

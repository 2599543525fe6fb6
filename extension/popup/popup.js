import { browser } from "../shared/browser.js";
import { isLetBe } from "../shared/messages.js";
import { byId, follow, followSiteAccess, showJudgement, showMode } from "../shared/view.js";
import { connectionWords } from "../shared/wording.js";

const patience = 2000; // in milliseconds; what is judged at all shows long before
let told = null;  // what was said last of the page
let asked = null; // what was said of it when the user asked, until something else is
let isInVain = false;

const ask = follow(({ phase, state }) => {
    const isConnected = phase === "connected";
    const { status, text } = connectionWords(phase);
    const page = state?.page ?? null;
    told = JSON.stringify([state?.focus, page]);
    if (asked !== null && asked !== told) {
        asked = null;
        isInVain = false;
    }
    byId("status").textContent = status;
    byId("status").classList.toggle("connected", isConnected);
    showMode(byId("mode"), state);
    showJudgement(byId("judgement"), page);
    // Of a page that is let be, there is nothing to ask.
    byId("ask").hidden = !page || isLetBe(page) || page.state === "judged" && !state.focus;
    byId("advice").hidden = isConnected && page !== null;
    byId("advice").textContent = isConnected ? "This page is of no site, so there is nothing to judge." : text;
    showAnswer(page?.state === "asking");
});

function showAnswer(isAsking) {
    byId("ask").disabled = isAsking || asked !== null && !isInVain;
    byId("ask").textContent = byId("ask").disabled ? "Asking …" : "Ask about this page";
    byId("vain").hidden = !isInVain;
}

byId("ask").addEventListener("click", () => {
    ask();
    asked = told;
    isInVain = false;
    showAnswer(true);
    setTimeout(() => {
        if (asked === null)
            return;
        isInVain = true;
        showAnswer(false);
    }, patience);
});
byId("options").addEventListener("click", event => {
    event.preventDefault();
    browser.runtime.openOptionsPage();
    window.close();
});
followSiteAccess(byId("access"), byId("allow"));

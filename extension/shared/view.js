import { browser, everySite } from "./browser.js";
import { shades } from "./colors.js";
import { judgementWords } from "./wording.js";

export function byId(id) {
    return document.getElementById(id);
}

export function element(name, className, ...children) {
    const made = document.createElement(name);
    if (className)
        made.className = className;
    made.append(...children);
    return made;
}

/** Names are the user's own, in any script: none of them may turn the sentence around it. */
export function modeName({ name, color }) {
    const made = element("bdi", "mode", name);
    const { fill, light, dark } = shades(color);
    for (const [property, value] of Object.entries({ "--tint": fill, "--light": light, "--dark": dark }))
        made.style.setProperty(property, value);
    return made;
}

export function showMode(place, state) {
    place.hidden = !state;
    if (state)
        place.replaceChildren(modeName(state.mode), element("span", "focus", state.focus ? "Focus session" : "No focus session"));
    place.classList.toggle("focused", state?.focus === true);
}

export function showJudgement(place, page) {
    place.hidden = !page;
    if (!page)
        return;
    const words = judgementWords(page);
    const verdict = element("p", "verdict", element("bdi", "site", page.site), ` ${words.belongs}`);
    if (words.mode)
        verdict.append(" ", modeName(words.mode));
    place.replaceChildren(verdict, ...words.notes.map(note => element("p", "note", note)));
}

/**
 * Shows what our background tells for as long as this page is open.
 * @return asks Fendrel about the page in front
 */
export function follow(show) {
    let port;
    const connect = () => {
        port = browser.runtime.connect({ name: "view" });
        port.onMessage.addListener(show);
        // The background may be ended at any moment, and starts again when it is spoken to.
        port.onDisconnect.addListener(() => setTimeout(connect, 500));
    };
    connect();
    return () => port.postMessage({ type: "ask" });
}

/** The user can take the access to sites from an extension, and then it knows of no page. */
export async function followSiteAccess(notice, button) {
    const look = async () => notice.hidden = await browser.permissions.contains(everySite);
    button.addEventListener("click", async () => {
        await browser.permissions.request(everySite);
        look();
    });
    browser.permissions.onAdded.addListener(look);
    browser.permissions.onRemoved.addListener(look);
    await look();
}

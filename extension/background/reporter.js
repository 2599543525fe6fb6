import { isBetweenPages, reportable } from "../shared/site.js";

const longestAddress = 8192; // a page's data can be in its address, and then it is no address that anybody needs
const longestTitle = 1024;

/** Tells Fendrel which tab is in front, once for each change of it. */
export class Reporter {
    #tabs;
    #windows;
    #send;
    #last = null;
    #isDue = false;
    #isLooking = false;
    #isOutdated = false;

    constructor(tabs, windows, send) {
        this.#tabs = tabs;
        this.#windows = windows;
        this.#send = send;
    }

    /** Something may be in front that was not, or may be called otherwise. */
    async changed() {
        this.#isOutdated = true;
        if (this.#isLooking)
            return;
        this.#isLooking = true;
        try {
            while (this.#isOutdated) {
                this.#isOutdated = false;
                const tab = await this.frontTab();
                const window = tab && await this.#windows.get(tab.windowId);
                // What changed while we looked is looked at again, so that the last word is never an old one.
                if (tab && !this.#isOutdated)
                    this.#report(tab, window.focused);
            }
        } finally {
            this.#isLooking = false;
        }
    }

    /** Whoever listens may not know what was told before, or was told of another window since. */
    again() {
        this.#isDue = true;
        return this.changed();
    }

    /** Nothing while a developer's tool is in front. */
    async frontTab() {
        const [tab] = await this.#tabs.query({ active: true, lastFocusedWindow: true });
        return tab ?? null;
    }

    #report(tab, focused) {
        const last = this.#last?.tabId === tab.id ? this.#last : null;
        // A tab between two pages still shows the first.
        const { url, title } = last && isBetweenPages(tab) ? last : this.#words(tab);
        const isNews = url !== last?.url || title !== last.title || focused && !last.focused;
        if (!isNews && !this.#isDue)
            return;
        this.#isDue = false;
        this.#last = { type: "tab", tabId: tab.id, url, title, focused, ...tab.incognito && { private: true } };
        this.#send(this.#last);
    }

    #words(tab) {
        const url = reportable(tab.url ?? "");
        return { url: url.slice(0, longestAddress), title: url ? (tab.title ?? "").slice(0, longestTitle) : "" };
    }
}

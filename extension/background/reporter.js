import { isBetweenPages, reportable } from "../shared/site.js";

const longestAddress = 8192; // a page's data can be in its address, and then it is no address that anybody needs
const longestTitle = 1024;

/** Tells Fendrel which tab is in front, once for each change of it. */
export class Reporter {
    #tabs;
    #send;
    #last = null;
    #isLooking = false;
    #isOutdated = false;

    constructor(tabs, send) {
        this.#tabs = tabs;
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
                // What changed while we looked is looked at again, so that the last word is never an old one.
                if (tab && !this.#isOutdated)
                    this.#report(tab);
            }
        } finally {
            this.#isLooking = false;
        }
    }

    /** Whoever listens now may not know what was told before. */
    again() {
        this.#last = null;
        return this.changed();
    }

    /** Nothing while a window is in front that is not for browsing: a developer's tool, an extension's window. */
    async frontTab() {
        const [tab] = await this.#tabs.query({ active: true, lastFocusedWindow: true, windowType: "normal" });
        return tab ?? null;
    }

    #report(tab) {
        const url = reportable(tab.url ?? "");
        const message = {
            type: "tab",
            tabId: tab.id,
            url: url.slice(0, longestAddress),
            title: url ? (tab.title ?? "").slice(0, longestTitle) : "",
        };
        const isLast = this.#last?.tabId === tab.id;
        if (isLast && (isBetweenPages(tab) || this.#last.url === message.url && this.#last.title === message.title))
            return;
        this.#last = message;
        this.#send(message);
    }
}

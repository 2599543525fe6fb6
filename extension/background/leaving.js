import { isBetweenPages, siteOf } from "../shared/site.js";

const mostSteps = 10;
const mostUnseenSteps = 2; // a step can be one of a frame, and then nothing of the tab changes
const startPatience = 500;  // until a step back shows; when there is nothing behind, nothing shows
const arrivalPatience = 1400; // Fendrel waits for two seconds in all

function stageOf(change, tab, site) {
    if (isBetweenPages(tab) || change.status === "loading" && siteOf(tab.url) === site)
        return "underway";
    if (siteOf(tab.url) !== site)
        return "left";
    return change.status === "complete" || change.url ? "moved" : null;
}

/**
 * Takes the user off a site: back to the last page that is of another site, else to a new-tab page. How far back that is
 * nobody tells an extension, so it goes back until it is there. A page can hold its tab, with the browser's question
 * whether to lose what was written for one; then the new-tab page is beside it, and the tab stays as it is.
 */
export class Leaving {
    onStayed = tabId => {}; // the site could not be left
    #tabs;
    #stepBack;
    #newTabPages;
    #underway = new Map(); // of each tab: what takes its changes

    /**
     * @param stepBack (tabId) leaves, as far as it can tell how, in one step; false when there is nothing behind
     * @param newTabPages what `tabs.update` takes for a new-tab page, the best first
     */
    constructor(tabs, stepBack, newTabPages) {
        this.#tabs = tabs;
        this.#stepBack = stepBack;
        this.#newTabPages = newTabPages;
    }

    async leave(tabId) {
        if (this.#underway.has(tabId))
            return;
        this.#underway.set(tabId, () => {});
        try {
            const tab = await this.#tabs.get(tabId);
            const site = siteOf(tab.url);
            let stage = site === null ? "left" : await this.#goBack(tabId, site);
            if (stage === "stuck")
                stage = await this.#becomeNew(tabId, site);
            if (stage !== "left")
                await this.#tabs.create({ windowId: tab.windowId, index: tab.index + 1 });
        } catch {
            // The tab is gone, or the browser makes no other just now.
            this.onStayed(tabId);
        } finally {
            this.#underway.delete(tabId);
        }
    }

    tabUpdated(tabId, change, tab) {
        this.#underway.get(tabId)?.(change, tab);
    }

    /** "left", "held" by a page that does not answer, or "stuck" where going back leads nowhere. */
    async #goBack(tabId, site) {
        let unseen = 0;
        for (let step = 0; step < mostSteps && unseen < mostUnseenSteps; ++step) {
            const outcome = this.#outcome(tabId, site);
            const stepped = this.#stepBack(tabId).catch(() => false);
            const answer = await Promise.race([stepped, outcome.then(seen => seen === "unseen" ? "held" : true)]);
            if (answer === "held")
                return "held";
            const seen = answer ? await outcome : "late";
            if (seen === "left")
                return "left";
            if (seen === "late")
                break;
            unseen += seen === "unseen" ? 1 : 0;
        }
        return "stuck";
    }

    /** "left" or "held". */
    async #becomeNew(tabId, site) {
        for (const page of this.#newTabPages) {
            const outcome = this.#outcome(tabId, site);
            await this.#tabs.update(tabId, page);
            const seen = await outcome;
            if (seen === "left")
                return "left";
            // Whoever holds the tab is asked once. But new-tab pages can be on the network, and then they may not come.
            if (seen === "unseen")
                break;
        }
        return "held";
    }

    /** "left" for another site, "moved" within this one, "unseen" when nothing moved, or "late". */
    #outcome(tabId, site) {
        return new Promise(resolve => {
            const finish = outcome => {
                if (this.#underway.get(tabId) === take)
                    this.#underway.set(tabId, () => {});
                resolve(outcome);
            };
            const take = (change, tab) => {
                const stage = stageOf(change, tab, site);
                if (stage === null)
                    return;
                clearTimeout(patience);
                if (stage === "underway")
                    patience = setTimeout(finish, arrivalPatience, "late");
                else
                    finish(stage);
            };
            let patience = setTimeout(finish, startPatience, "unseen");
            this.#underway.set(tabId, take);
        });
    }
}

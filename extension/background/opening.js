import { isWebAddress, reportable } from "../shared/site.js";

const mostAddresses = 100; // more than anybody had open on purpose, and few enough for the browser to live through

/**
 * Opens pages of the web in the window that the user browses in, the first of them in front. Those that are open
 * already are left as they are; private windows count for nothing.
 */
export async function openAddresses(browser, urls) {
    const tabs = (await browser.tabs.query({ windowType: "normal" })).filter(tab => !tab.incognito);
    const there = new Set(tabs.map(tab => reportable(tab.url ?? "")));
    const addresses = urls.filter(url => isWebAddress(url) && !there.has(reportable(url))).slice(0, mostAddresses);
    if (addresses.length === 0)
        return;
    const front = await browser.windows.getLastFocused().catch(() => null);
    const isRight = front?.type === "normal" && !front.incognito;
    const windowId = isRight ? front.id : tabs.find(tab => tab.active)?.windowId;
    if (windowId === undefined) {
        await browser.windows.create({ url: addresses });
        return;
    }
    for (const [index, url] of addresses.entries())
        await browser.tabs.create({ windowId, url, active: index === 0 });
}

import { browser, isFirefox } from "../shared/browser.js";
import { understood } from "../shared/messages.js";
import { Connection, Phase } from "./connection.js";
import { Leaving } from "./leaving.js";
import { openAddresses } from "./opening.js";
import { Pages } from "./pages.js";
import { Reporter } from "./reporter.js";
import { Veils } from "./veils.js";
import { Views } from "./views.js";

// The browser may end us at any moment and starts us again for an event, so listeners are added while this file runs
// for the first time. Nothing is kept over such an end: with us the relay ends, Fendrel forgets us and tells all anew.

const connection = new Connection(() => browser.runtime.connectNative("org.fendrel.bridge"),
                                  port => port.error ?? browser.runtime.lastError);
const reporter = new Reporter(browser.tabs, browser.windows, message => connection.send(message));
const pages = new Pages(browser.scripting, isFirefox);
const veils = new Veils(browser.tabs, pages);
const views = new Views();
// Firefox lets no extension open its new-tab page in a tab that is there.
const newTabPages = isFirefox ? [{ url: "about:blank", loadReplace: true }] : [{ url: "chrome://newtab/" }, { url: "about:blank" }];
const leaving = new Leaving(browser.tabs, stepBack, newTabPages);

const handlers = {
    veil: message => veils.put(message),
    unveil: ({ tabId }) => veils.lift(tabId),
    back: ({ tabId }) => leaving.leave(tabId),
    open: ({ urls }) => openAddresses(browser, urls),
    state: message => {
        veils.review(message);
        views.stateChanged(message);
    },
};

connection.onOpened = () => reporter.again();
connection.onMessage = message => {
    const known = understood(message);
    if (known)
        handlers[known.type]?.(known);
};
connection.onPhase = phase => {
    views.phaseChanged(phase, connection.reason);
    if (phase !== Phase.connected)
        veils.liftAll();
};
pages.details = tabId => veils.details(tabId);
pages.onAsk = tabId => connection.send({ type: "ask", tabId });
veils.onClosed = tabId => connection.send({ type: "closed", tabId });
// The report of where the tab went can be the same as the last one when it came straight back.
veils.onDropped = () => reporter.again();
leaving.onStayed = () => reporter.again();

// Entries of one origin are numbered from the first after any other site; the step before that is the one out.
async function stepBack(tabId) {
    const leave = () => {
        const within = globalThis.navigation?.currentEntry?.index ?? 0;
        history.go(-1 - within);
        return history.length > 1 + within;
    };
    const [{ result }] = await browser.scripting.executeScript({ target: { tabId }, func: leave, injectImmediately: true });
    return result;
}

async function askAboutFront() {
    const tab = await reporter.frontTab();
    if (tab)
        connection.send({ type: "ask", tabId: tab.id });
}

browser.tabs.onActivated.addListener(() => reporter.changed());
browser.tabs.onUpdated.addListener((tabId, change, tab) => {
    // Other changes can come while the tab is between two pages and does not even tell that it is loading.
    if (!["status", "url", "title", "audible"].some(name => name in change))
        return;
    leaving.tabUpdated(tabId, change, tab);
    veils.tabUpdated(tabId, change, tab);
    if (tab.active)
        reporter.changed();
});
browser.tabs.onReplaced?.addListener((added, removed) => {
    veils.tabRemoved(removed);
    reporter.changed();
});
browser.tabs.onRemoved.addListener(tabId => veils.tabRemoved(tabId));
browser.tabs.onAttached.addListener(() => reporter.changed());
// Another profile of this browser may have told of its own window meanwhile, and only one of them is in front.
browser.windows.onFocusChanged.addListener(windowId =>
    windowId === browser.windows.WINDOW_ID_NONE ? reporter.changed() : reporter.again());

browser.runtime.onConnect.addListener(port => {
    if (port.name !== "view") {
        pages.connected(port);
        return;
    }
    connection.open();
    views.connected(port);
    port.onMessage.addListener(message => {
        if (message?.type === "ask")
            askAboutFront();
    });
});

// These only have to wake us: we connect whenever we start.
browser.runtime.onStartup.addListener(() => {});
browser.runtime.onInstalled.addListener(() => {});
browser.alarms.onAlarm.addListener(() => connection.open());
browser.alarms.create("connection", { periodInMinutes: 0.5 });
browser.permissions.onAdded.addListener(() => reporter.changed());

connection.open();

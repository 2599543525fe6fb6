import assert from "node:assert/strict";
import { beforeEach, test } from "node:test";
import { Veils } from "../background/veils.js";
import { FakeTabs } from "./fake_browser.js";

const site = "social.example";
const message = { type: "veil", tabId: 1, site, mode: "Social", color: "#f0644f" };

let tabs, covered, covers, isHeard, guarded, happened, veils;
beforeEach(() => {
    tabs = new FakeTabs();
    tabs.put(1, "https://www.social.example/page");
    [covered, covers, isHeard, guarded, happened] = [new Map(), 0, true, new Set(), []];
    veils = new Veils(tabs, {
        cover: (tabId, details) => ++covers && covered.set(tabId, details),
        shows: () => isHeard,
        uncover: tabId => covered.delete(tabId),
        guard: sites => guarded = sites,
    });
    veils.onClosed = tabId => happened.push(["closed", tabId]);
    veils.onDropped = tabId => happened.push(["dropped", tabId]);
});

const update = (change, url, status = change.status ?? "complete") => veils.tabUpdated(1, change, tabs.put(1, url, { status }));
const isVeiled = () => covered.has(1) && veils.details(1) !== null;

test("a veil is of one site in one tab", async () => {
    const rows = [
        ["of that site", "https://social.example./x", true],
        ["of another site", "https://other.example/", false],
        ["of a part of the site", "https://chat.social.example/", false],
        ["not to be seen", undefined, false],
    ];
    for (const [name, url, isRight] of rows) {
        tabs.put(1, url);
        await veils.put(message);
        assert.equal(isVeiled(), isRight, name);
        assert.equal(guarded.has(site), isRight, name);
        veils.liftAll();
    }
    assert.deepEqual(happened, []);
});

test("a tab that is gone is told to be closed", async () => {
    await veils.put({ ...message, tabId: 9 });
    await veils.put(message);
    veils.tabRemoved(1);
    veils.tabRemoved(2);
    assert.deepEqual(happened, [["closed", 9], ["closed", 1]]);
    assert.equal(guarded.size, 0);
});

test("what changes while the tab is looked up counts", async () => {
    const put = veils.put(message);
    veils.lift(1);
    await put;
    assert.equal(covered.has(1), false);

    const [first, second] = [veils.put(message), veils.put({ ...message, mode: "Chat" })];
    await Promise.all([first, second]);
    assert.equal(covered.get(1).mode, "Chat");
});

test("what is put again as it is costs a page nothing that shows it", async () => {
    const rows = [[message, true, 1], [message, true, 1], [message, false, 2], [{ ...message, mode: "Chat" }, true, 3], [{ ...message, mode: "Chat", color: "#000000" }, true, 4]];
    for (const [put, isThere, count] of rows) {
        isHeard = isThere;
        await veils.put(put);
        assert.equal(covers, count, JSON.stringify([put, isThere]));
    }
});

test("a veil follows its tab inside the site, and no further", async () => {
    const steps = [
        ["a reload", () => update({ status: "loading" }, "https://social.example/page"), true],
        ["an address not told while it loads", () => update({ status: "loading" }, undefined), true],
        ["the next page", () => update({ status: "loading", url: "https://social.example/2" }, "https://social.example/2"), true],
        ["another site", () => update({ url: "https://other.example/" }, "https://other.example/", "loading"), false],
    ];
    await veils.put(message);
    for (const [name, step, isKept] of steps) {
        step();
        assert.equal(isVeiled(), isKept, name);
    }
    assert.deepEqual(happened, [["dropped", 1]]);
    update({ url: "https://social.example/" }, "https://social.example/");
    assert.equal(isVeiled(), false, "a new visit is Fendrel's to judge");
});

test("a page of the browser's own ends a veil as soon as it is there", async () => {
    await veils.put(message);
    update({ status: "complete" }, undefined);
    assert.equal(isVeiled(), false);
});

test("what Fendrel lets be stays under no veil", async () => {
    const mode = { name: "Social", color: "#f0644f" };
    const page = { tabId: 1, site, state: "judged", mode, isCurrent: false, certainty: "certain", isAllowed: false };
    const rows = [
        [{ focus: true, page }, true],
        [{ focus: true, page: null }, true],
        [{ focus: true, page: { tabId: 1, site, state: "asking" } }, true],
        [{ focus: true, page: { ...page, site: "other.example", isCurrent: true } }, true],
        [{ focus: true, page: { ...page, tabId: 2, isCurrent: true } }, true],
        [{ focus: true, page: { ...page, isCurrent: true } }, false],
        [{ focus: true, page: { ...page, isAllowed: true } }, false],
        [{ focus: true, page: { ...page, mode: null } }, false],
        [{ focus: true, page: { ...page, certainty: "likely" } }, false],
        [{ focus: false, page: null }, false],
    ];
    for (const [state, isKept] of rows) {
        await veils.put(message);
        veils.review(state);
        assert.equal(isVeiled(), isKept, JSON.stringify(state));
    }
});

test("when Fendrel is lost, nothing stays veiled or guarded", async () => {
    tabs.put(2, "http://social.example:8080/");
    await veils.put(message);
    await veils.put({ ...message, tabId: 2 });
    veils.lift(2);
    assert.ok(guarded.has(site), "another tab still needs it");
    await veils.put({ ...message, tabId: 2 });
    veils.liftAll();
    assert.deepEqual([covered.size, guarded.size, happened], [0, 0, []]);
});

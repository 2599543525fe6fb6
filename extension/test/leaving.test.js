import assert from "node:assert/strict";
import { afterEach, beforeEach, mock, test } from "node:test";
import { Leaving } from "../background/leaving.js";
import { FakeTabs, settled, stopClock } from "./fake_browser.js";

const newTabPages = [{ url: "chrome://newtab/" }, { url: "about:blank" }];
const inSite = "https://social.example/earlier";
const outside = "https://other.example/";

let tabs, steps, stayed, leaving;
beforeEach(() => {
    stopClock();
    tabs = new FakeTabs();
    tabs.put(1, "https://social.example/");
    [steps, stayed] = [0, []];
    leaving = new Leaving(tabs, async () => ++steps > 0, newTabPages);
    leaving.onStayed = tabId => stayed.push(tabId);
});
afterEach(() => mock.timers.reset());

async function update(change, url, status = change.status ?? "complete") {
    leaving.tabUpdated(1, change, tabs.put(1, url, { status }));
    await settled();
}

test("it goes back until it is outside the site", async () => {
    const left = leaving.leave(1);
    await settled();
    await update({ status: "loading" }, undefined); // an address not told says nothing yet
    await update({ status: "loading", url: inSite }, inSite);
    await update({ status: "complete" }, inSite);
    assert.equal(steps, 2);
    mock.timers.tick(500); // a step of a frame is not seen
    await settled();
    assert.equal(steps, 3);
    await update({ url: "https://www.social.example/" }, "https://www.social.example/");
    assert.equal(steps, 4);
    await update({ status: "loading", url: outside }, outside);
    await left;
    assert.deepEqual([steps, tabs.updates, stayed], [4, [], []]);
});

test("where nothing is behind, the tab becomes a new one", async () => {
    const rows = [
        ["nothing moves", async () => {
            mock.timers.tick(500);
            await settled();
            mock.timers.tick(500);
        }],
        ["the page before does not come", async () => {
            await update({ status: "loading" }, "https://social.example/");
            mock.timers.tick(1400);
        }],
        ["there is no history", () => {}, async () => false],
        ["the browser refuses", () => {}, async () => { throw new Error("Cannot access"); }],
        ["it goes on for ever", async () => {
            for (let step = 0; step < 10; ++step)
                await update({ status: "complete" }, inSite);
        }],
    ];
    for (const [name, happen, stepBack] of rows) {
        tabs.put(1, "https://social.example/");
        tabs.updates = [];
        const told = new Leaving(tabs, stepBack ?? (async () => true), newTabPages);
        leaving = told;
        const left = told.leave(1);
        await settled();
        await happen();
        await settled();
        assert.deepEqual(tabs.updates, [[1, newTabPages[0]]], name);
        await update({ status: "complete" }, undefined);
        await left;
    }
});

test("a page that holds its tab is left for a tab beside it", async () => {
    const pass = async milliseconds => {
        mock.timers.tick(milliseconds);
        await settled();
    };
    const never = new Promise(() => {});
    const rows = [
        ["it asks before it goes back", () => steps++ === 0 ? true : never, () => pass(500), 0],
        ["it answers nothing", () => never, () => {}, 0],
        ["it asks before it becomes new", async () => false, () => {}, 1],
        ["no new-tab page comes", async () => false, async () => {
            for (const page of newTabPages) {
                assert.deepEqual(tabs.updates.at(-1), [1, page]);
                await update({ status: "loading" }, "https://social.example/");
                await pass(1400);
            }
        }, 2],
    ];
    for (const [name, stepBack, happen, updates] of rows) {
        [steps, tabs.updates, tabs.created] = [0, [], []];
        leaving = new Leaving(tabs, async () => stepBack(), newTabPages);
        leaving.onStayed = tabId => stayed.push(tabId);
        const left = leaving.leave(1);
        await settled();
        await happen();
        await pass(500);
        await left;
        assert.deepEqual(tabs.created, [{ windowId: 1, index: 5 }], name);
        assert.equal(tabs.updates.length, updates, name);
    }
    assert.deepEqual(stayed, []);
    tabs.create = () => Promise.reject(new Error("Tabs cannot be edited right now"));
    leaving.leave(1);
    await settled();
    await pass(500);
    assert.deepEqual(stayed, [1]);
});

test("once is enough, and a tab that is gone or elsewhere is left alone", async () => {
    leaving.leave(1);
    await leaving.leave(1);
    await settled();
    assert.equal(steps, 1);
    await leaving.leave(9);
    tabs.put(2, undefined);
    await leaving.leave(2);
    assert.deepEqual([steps, tabs.updates, tabs.created], [1, [], []]);
});

import assert from "node:assert/strict";
import { test } from "node:test";
import { Pages } from "../background/pages.js";
import { FakePort, FakeScripting, settled } from "./fake_browser.js";

const details = { site: "social.example", mode: "Social" };
const pagePort = (tabId, url) => new FakePort("page", { tab: { id: tabId }, url });

test("sites are guarded while a tab of them is veiled", async () => {
    const scripting = new FakeScripting();
    scripting.registered.set("left by an earlier life", {});
    const pages = new Pages(scripting, true);
    pages.guard(new Set(["a.example"]));
    pages.guard(new Set(["a.example", "b.example"]));
    await pages.guard(new Set(["b.example"]));
    assert.deepEqual([...scripting.registered.keys()], ["cover b.example", "lifeline b.example"]);
    await pages.guard(new Set());
    assert.equal(scripting.registered.size, 0);
});

test("a host that cannot be guarded does not take the others with it", async () => {
    const scripting = new FakeScripting();
    const pages = new Pages(scripting, false);
    scripting.refuses = true;
    pages.cover(1, details);
    await pages.guard(new Set(["[2001:db8::1]"]));
    scripting.refuses = false;
    await pages.guard(new Set(["[2001:db8::1]", "a.example"]));
    assert.deepEqual([...scripting.registered.keys()], ["cover a.example"]);
});

test("a page asks, and is told what holds for its tab", () => {
    const pages = new Pages(new FakeScripting(), false);
    pages.details = tabId => tabId === 1 ? details : null;
    const rows = [
        ["a veiled tab", pagePort(1, "https://social.example/2"), "cover"],
        ["its frame, of whatever site", new FakePort("frame", { tab: { id: 1 }, url: "https://video.example/" }), "cover"],
        ["the tab after it went on", pagePort(1, "https://other.example/"), "uncover"],
        ["another tab of the site", pagePort(2, "https://social.example/"), "uncover"],
    ];
    for (const [name, port, type] of rows) {
        pages.connected(port);
        assert.deepEqual(port.messages.map(message => message.type), [type], name);
    }
});

test("every document of the tab hears, but for those that are gone", () => {
    const pages = new Pages(new FakeScripting(), false);
    const asked = [];
    pages.details = () => details;
    pages.onAsk = tabId => asked.push(tabId);
    const [old, page, closing] = [1, 1, 1].map(tabId => pagePort(tabId, "https://social.example/"));
    [old, page, closing].forEach(port => pages.connected(port));
    old.drop();
    closing.isOpen = false;
    page.say({ type: "ask" });
    page.say(null);
    pages.uncover(1);
    assert.deepEqual(page.messages.map(message => message.type), ["cover", "uncover"]);
    assert.ok(pages.shows(1));
    page.drop();
    pages.connected(new FakePort("frame", { tab: { id: 1 }, url: "https://video.example/" }));
    closing.drop();
    assert.ok(!pages.shows(1), "a frame is not the page");
    assert.equal(old.messages.length, 1);
    assert.deepEqual(asked, [1]);
});

test("frames are reached after the page, which would otherwise be taken for one", async () => {
    const scripting = new FakeScripting();
    let arrive;
    const executeScript = scripting.executeScript.bind(scripting);
    scripting.executeScript = injection => Promise.all([executeScript(injection), new Promise(resolve => arrive = resolve)]);
    new Pages(scripting, false).cover(1, details);
    await settled();
    assert.deepEqual(scripting.injections.map(injection => injection.target), [{ tabId: 1 }]);
    assert.ok(scripting.injections[0].files.includes("content/cover.js"));
    arrive();
    await settled();
    assert.deepEqual(scripting.injections[1].target, { tabId: 1, allFrames: true });
    assert.ok(!scripting.injections[1].files.includes("content/cover.js"));
});

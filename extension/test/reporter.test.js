import assert from "node:assert/strict";
import { beforeEach, test } from "node:test";
import { Reporter } from "../background/reporter.js";
import { FakeTabs } from "./fake_browser.js";

let tabs, isFocused, told, reporter;
beforeEach(() => {
    tabs = new FakeTabs();
    [isFocused, told] = [true, []];
    reporter = new Reporter(tabs, { get: async () => ({ focused: isFocused }) }, message => told.push(message));
});

const addresses = () => told.map(message => message.url);

test("each change of what is in front is told once", async () => {
    const steps = [
        [() => tabs.put(1, "https://a.example/"), true],
        [() => tabs.put(1, "https://a.example/#part", { title: "Title of https://a.example/" }), false],
        [() => tabs.put(1, "https://a.example/", { title: "(1) New" }), true],
        [() => tabs.put(1, "https://a.example/", { title: "(1) New", audible: true }), false],
        [() => tabs.put(2, "https://a.example/", { title: "(1) New" }) && tabs.tabs.delete(1), true],
        [() => tabs.put(2, undefined, { title: "Settings of the browser" }), true],
        [() => tabs.put(2, undefined, { title: "Other settings" }), false],
        [() => tabs.tabs.clear(), false], // a developer's tool in front
    ];
    for (const [step, isTold] of steps) {
        step();
        const before = told.length;
        await reporter.changed();
        assert.equal(told.length - before, isTold ? 1 : 0, step.toString());
    }
    assert.deepEqual(told.at(-1), { type: "tab", tabId: 2, url: "", title: "", focused: true });
});

test("of a burst the last state is told, whatever changes while tabs are looked at", async () => {
    tabs.put(1, "https://a.example/1");
    const first = reporter.changed();
    for (let step = 2; step <= 50; ++step) {
        tabs.put(1, `https://a.example/${step}`);
        reporter.changed();
    }
    await first;
    assert.deepEqual(addresses(), ["https://a.example/50"]);
});

test("a browser that cannot be asked now is asked the next time", async () => {
    tabs.put(1, "https://a.example/");
    const { query } = tabs;
    tabs.query = () => Promise.reject(new Error("No window"));
    await assert.rejects(reporter.changed());
    tabs.query = query;
    await reporter.changed();
    assert.deepEqual(addresses(), ["https://a.example/"]);
});

test("a tab between two pages still shows the first", async () => {
    tabs.put(1, "https://a.example/");
    await reporter.changed();
    tabs.put(1, undefined, { status: "loading" });
    await reporter.changed();
    assert.deepEqual(addresses(), ["https://a.example/"]);
    await reporter.again();
    assert.deepEqual(addresses(), ["https://a.example/", "https://a.example/"], "also to whoever is new");
    tabs.put(1, undefined, { active: false });
    tabs.put(2, undefined, { status: "loading" });
    await reporter.changed();
    assert.deepEqual(addresses().at(-1), "", "another tab is in front, whatever it will show");
});

test("whoever is new is told again", async () => {
    tabs.put(1, "https://a.example/");
    await reporter.changed();
    await reporter.again();
    assert.equal(told.length, 2);
});

test("who comes to the front says so, and who leaves it says nothing", async () => {
    tabs.put(1, "https://a.example/");
    for (const focused of [true, false, false]) {
        isFocused = focused;
        await reporter.changed();
    }
    assert.deepEqual(told.map(message => message.focused), [true]);
    tabs.put(1, "https://b.example/");
    await reporter.changed();
    isFocused = true;
    await reporter.changed();
    assert.deepEqual(told.map(message => message.focused), [true, false, true]);
});

test("a page in a private window is told as such", async () => {
    tabs.put(1, "https://a.example/", { incognito: true });
    await reporter.changed();
    tabs.put(1, "https://a.example/", { incognito: true, title: "Later" });
    await reporter.changed();
    tabs.put(1, undefined, { active: false });
    tabs.put(2, "https://b.example/", { incognito: false });
    await reporter.changed();
    assert.deepEqual(told.map(message => message.private), [true, true, undefined]);
});

test("what is told has an end", async () => {
    tabs.put(1, `https://a.example/?${"x".repeat(2_000_000)}`, { title: "y".repeat(2_000_000) });
    await reporter.changed();
    assert.ok(JSON.stringify(told[0]).length < 16_384);
    assert.equal(new URL(told[0].url).hostname, "a.example");
});

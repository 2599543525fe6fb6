import assert from "node:assert/strict";
import { afterEach, beforeEach, mock, test } from "node:test";
import { Connection, Phase } from "../background/connection.js";
import { FakePort, stopClock } from "./fake_browser.js";

let ports, phases, opened, connection;
beforeEach(() => {
    stopClock();
    [ports, phases, opened] = [[], [], 0];
    connection = new Connection(() => {
        ports.push(new FakePort());
        return ports.at(-1);
    }, port => port.error);
    connection.onPhase = phase => phases.push(phase);
    connection.onOpened = () => ++opened;
});
afterEach(() => mock.timers.reset());

test("without a relay it is tried again, at first soon", () => {
    connection.open();
    const waits = [500, 1000, 2000, 2500, 2500];
    for (const [index, wait] of waits.entries()) {
        ports.at(-1).drop({ message: "Specified native messaging host not found." });
        mock.timers.tick(wait - 1);
        assert.equal(ports.length, index + 1, `too early after ${wait}`);
        mock.timers.tick(1);
        assert.equal(ports.length, index + 2, `not after ${wait}`);
    }
    assert.equal(connection.phase, Phase.absent);
    assert.equal(connection.reason, "Specified native messaging host not found.");
});

test("a relay that has spoken is back soon after it ended", () => {
    connection.open();
    for (let failure = 0; failure < 6; ++failure) {
        ports.at(-1).drop();
        mock.timers.tick(20_000);
    }
    ports.at(-1).say({ type: "connected" });
    ports.at(-1).drop();
    mock.timers.tick(500);
    assert.equal(ports.length, 8);
    assert.equal(opened, 8);
});

test("an alarm, or who opens a view, shortens the wait, and leaves a line alone", () => {
    connection.open();
    ports.at(-1).drop();
    connection.open();
    connection.open();
    mock.timers.tick(60_000);
    assert.equal(ports.length, 2);
});

test("the relay's words are ours, others are passed on", () => {
    const passed = [];
    connection.onMessage = message => passed.push(message);
    connection.open();
    for (const message of [{ type: "disconnected" }, { type: "veil" }, null, 3, { type: "connected" }])
        ports[0].say(message);
    assert.deepEqual(phases, [Phase.away, Phase.connected]);
    assert.deepEqual(passed, [{ type: "veil" }, null, 3]);
});

test("a browser that refuses to start anything stops nothing", () => {
    const refused = new Connection(() => { throw new Error("Permission denied"); });
    refused.open();
    refused.send({ type: "tab" });
    assert.equal(refused.phase, Phase.absent);
    connection.open();
    ports[0].isOpen = false;
    connection.send({ type: "tab" });
});

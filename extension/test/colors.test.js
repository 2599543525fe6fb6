import assert from "node:assert/strict";
import { test } from "node:test";
import { contrast, shades } from "../shared/colors.js";

test("every mode's name can be read, and its symbol be seen", () => {
    const tints = ["#e89a1c", "#f0644f", "#e24f93", "#8b5ce6", "#2f7df0", "#129aa0", "#2ea055", "#6e7681"];
    for (const tint of [...tints, "#000000", "#ffffff", "#FFFF00"]) {
        const { fill, onFill, light, dark } = shades(tint);
        assert.ok(contrast(light, "#ffffff") >= 4.5, `${tint} on light: ${light}`);
        assert.ok(contrast(dark, "#26272c") >= 4.5, `${tint} on dark: ${dark}`);
        assert.ok(contrast(onFill, fill) >= 3, `${onFill} on ${tint}`);
    }
    assert.equal(shades("#7a0000").light, "#7a0000", "what can be read stays as it is");
});

const channels = color => [1, 3, 5].map(start => parseInt(color.slice(start, start + 2), 16));

// As WCAG 2 defines it.
function luminance(color) {
    const [red, green, blue] = channels(color).map(value => value / 255)
        .map(value => value <= 0.03928 ? value / 12.92 : ((value + 0.055) / 1.055) ** 2.4);
    return 0.2126 * red + 0.7152 * green + 0.0722 * blue;
}

/** From 1 (the same) to 21 (black on white). */
export function contrast(one, other) {
    const [low, high] = [luminance(one), luminance(other)].sort((a, b) => a - b);
    return (high + 0.05) / (low + 0.05);
}

function mixed(color, other, share) {
    const [from, to] = [channels(color), channels(other)];
    return "#" + from.map((value, index) => Math.round(value + (to[index] - value) * share).toString(16).padStart(2, "0")).join("");
}

const grounds = { light: "#ffffff", dark: "#26272c" };
const readable = 4.5;
const visible = 3;

/**
 * A mode's colour as it can be shown: itself as a fill, a symbol's colour on that fill, and itself as text on a light and
 * on a dark ground, moved no further from itself than reading asks for.
 */
export function shades(color) {
    const text = ground => {
        const end = luminance(ground) > 0.5 ? "#000000" : "#ffffff";
        for (let share = 0; share < 1; share += 0.02) {
            const candidate = mixed(color, end, share);
            if (contrast(candidate, ground) >= readable)
                return candidate;
        }
        return end;
    };
    const onFill = contrast("#ffffff", color) >= visible ? "#ffffff" : "#1c1d21";
    return { fill: color, onFill, light: text(grounds.light), dark: text(grounds.dark) };
}

globalThis.fendrel ??= {};

// What the veil says, in elements made one by one: pages can forbid markup, and styles written into it.
fendrel.fillCard = (dialog, { site, mode, shades }) => {
    const spaces = { svg: "http://www.w3.org/2000/svg", path: "http://www.w3.org/2000/svg", circle: "http://www.w3.org/2000/svg" };
    const element = (name, attributes, ...children) => {
        const made = document.createElementNS(spaces[name] ?? "http://www.w3.org/1999/xhtml", name);
        for (const [key, value] of Object.entries(attributes))
            made.setAttribute(key, value);
        made.append(...children);
        return made;
    };

    const globe = element("svg", { class: "globe", viewBox: "0 0 24 24", "aria-hidden": "true" },
        element("circle", { cx: "12", cy: "12", r: "10" }),
        element("path", { d: "M12 2a14.5 14.5 0 0 0 0 20 14.5 14.5 0 0 0 0-20" }),
        element("path", { d: "M2 12h20" }));
    const mark = element("svg", { class: "mark", viewBox: "0 0 16 16", "aria-hidden": "true" },
        element("path", { d: "M4 2h8a1 1 0 0 1 0 2H5v9a1 1 0 0 1-2 0V3a1 1 0 0 1 1-1Z" }),
        element("path", { class: "lit", d: "M7.5 6h4a1.5 1.5 0 0 1 0 3h-4a1.5 1.5 0 0 1 0-3Z" }));
    // A host that is too long for a line is to end it after a dot.
    const labels = site.split(/(?<=\.)/).flatMap(label => [label, element("wbr", {})]);
    const headline = element("h1", { id: "headline" },
        element("bdi", { class: "site" }, ...labels), " belongs to ", element("bdi", { class: "mode" }, mode), ".");
    const note = element("p", { id: "note" }, "You are in a focus session. ", element("br", {}), "Fendrel asks before this page opens.");
    const button = element("button", { type: "button" }, "Ask now");

    for (const [name, color] of Object.entries({ tint: shades.fill, "on-tint": shades.onFill, light: shades.light, dark: shades.dark }))
        dialog.style.setProperty(`--${name}`, color);
    dialog.removeAttribute("aria-label");
    dialog.setAttribute("aria-labelledby", "headline");
    dialog.setAttribute("aria-describedby", "note");
    const card = element("div", { class: "card" }, element("div", { class: "badge" }, globe), headline, note, button);
    dialog.replaceChildren(card, element("div", { class: "maker" }, mark, "Fendrel"));
    if (!matchMedia("(prefers-reduced-motion: reduce)").matches)
        card.animate({ opacity: [0, 1] }, { duration: 220, easing: "ease-out" });
};

// Where the browser takes an extension away, it ends our scripts in pages without a word, but takes our style sheets out
// of them. This one runs as a part of the page and outlives us: when the veil's element loses the size that the sheet
// gives it, the veil is nobody's any more.
(() => {
    const mark = Symbol.for("fendrel.lifeline");
    if (globalThis[mark])
        return;
    globalThis[mark] = true;

    const sized = new WeakSet();
    const sizes = new ResizeObserver(entries => {
        for (const { target, contentRect } of entries) {
            if (contentRect.width > 0)
                sized.add(target);
            else if (sized.has(target))
                target.remove();
        }
    });
    const watch = () => document.querySelectorAll("fendrel-veil").forEach(veil => sizes.observe(veil));
    const place = new MutationObserver(watch);
    place.observe(document, { childList: true });
    place.observe(document.documentElement, { childList: true });
    watch();
})();

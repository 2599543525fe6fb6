globalThis.fendrel ??= {};

fendrel.style = `
:host {
    display: block !important;
    position: fixed !important;
    inset: 0 auto auto 0 !important;
    visibility: visible !important;
    content-visibility: visible !important;
    pointer-events: none !important;
}

dialog {
    all: initial;
    --window: #f5f5f7;
    --surface: #ffffff;
    --text: #1c1d21;
    --secondary: #5c606a;
    --line: #0000001a;
    --hover: #0000000d;
    --pressed: #0000001a;
    --ink: var(--light, var(--text));
    --shadow: 0 14px 40px #1c1d2124;
    --glow: 26%;

    position: fixed;
    inset: 0;
    box-sizing: border-box;
    width: 100%;
    height: 100%;
    max-width: none;
    max-height: none;
    padding: 24px;
    overflow: auto;
    overscroll-behavior: contain;
    scrollbar-width: thin;
    display: grid;
    grid-template-rows: 1fr auto 1fr;
    justify-items: center;
    visibility: visible;
    pointer-events: auto;
    user-select: none;
    -webkit-user-select: none;
    color-scheme: light dark;
    color: var(--text);
    background: radial-gradient(110% 85% at 50% 0, color-mix(in srgb, var(--tint, transparent) var(--glow), transparent), transparent 72%), var(--window);
    font: 15px/1.5 Inter, system-ui, sans-serif;
    text-align: center;
    -webkit-text-size-adjust: none;
}

dialog::backdrop {
    background: #f5f5f7;
}

.card {
    grid-row: 2;
    box-sizing: border-box;
    width: min(440px, 100%);
    padding: 36px 32px 32px;
    border: 1px solid var(--line);
    border-radius: 22px;
    background: var(--surface);
    box-shadow: var(--shadow);
}

.badge {
    display: grid;
    place-items: center;
    width: 72px;
    height: 72px;
    margin: 0 auto 20px;
    border-radius: 20px;
    color: var(--on-tint);
    background: linear-gradient(#ffffff26, #00000014), var(--tint);
}

svg {
    fill: none;
    stroke: currentColor;
    stroke-linecap: round;
    stroke-linejoin: round;
}

.globe {
    width: 38px;
    height: 38px;
    stroke-width: 1.6;
}

h1 {
    margin: 0 0 8px;
    font: 700 20px/1.35 Inter, system-ui, sans-serif;
    text-wrap: balance;
    overflow-wrap: anywhere;
    hyphens: none;
}

.mode {
    color: var(--ink);
}

p {
    margin: 0 0 24px;
    color: var(--secondary);
    text-wrap: balance;
}

button {
    all: unset;
    box-sizing: border-box;
    min-width: min(160px, 100%);
    padding: 9px 20px;
    border: 1px solid var(--line);
    border-radius: 10px;
    color: var(--text);
    font: 600 14px/20px Inter, system-ui, sans-serif;
    cursor: default;
}

button:hover {
    background: var(--hover);
}

button:active {
    background: var(--pressed);
}

button:focus-visible {
    outline: 2px solid var(--ink);
    outline-offset: 2px;
}

.maker {
    grid-row: 3;
    align-self: end;
    display: flex;
    align-items: center;
    gap: 6px;
    padding-top: 24px;
    color: var(--secondary);
    font: 600 12px/16px Inter, system-ui, sans-serif;
}

.mark {
    width: 16px;
    height: 16px;
    fill: currentColor;
    stroke: none;
}

.mark .lit {
    fill: var(--ink);
}

@media (prefers-color-scheme: dark) {
    dialog {
        --window: #1b1c20;
        --surface: #26272c;
        --text: #f3f4f6;
        --secondary: #a7abb4;
        --line: #ffffff1f;
        --hover: #ffffff14;
        --pressed: #ffffff24;
        --ink: var(--dark, var(--text));
        --shadow: 0 14px 40px #00000066;
        --glow: 20%;
    }

    dialog::backdrop {
        background: #1b1c20;
    }
}

@media (max-width: 400px), (max-height: 460px) {
    dialog {
        padding: 12px;
    }

    .card {
        padding: 22px 18px 18px;
    }

    .badge {
        width: 52px;
        height: 52px;
        margin-bottom: 12px;
        border-radius: 15px;
    }

    .globe {
        width: 28px;
        height: 28px;
    }

    h1 {
        font-size: 18px;
    }

    p {
        margin-bottom: 16px;
    }
}

@media (max-width: 280px) {
    .card {
        padding: 16px 12px 12px;
    }

    h1 {
        font-size: 15px;
    }

    p {
        font-size: 13px;
    }
}

@media (max-height: 360px) {
    .maker, .badge {
        display: none;
    }
}
`;

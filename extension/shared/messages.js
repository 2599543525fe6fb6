// What Fendrel says, through its relay. Whatever is not as described here is skipped: it comes from another program.

const isText = value => typeof value === "string" && value !== "";
const isAnyText = value => typeof value === "string";
const isFlag = value => typeof value === "boolean";
const isTabId = value => Number.isSafeInteger(value) && value >= 0;
const isColor = value => typeof value === "string" && /^#[0-9a-f]{6}$/i.test(value);
const isOneOf = (...values) => value => values.includes(value);
const isListOf = isItem => value => Array.isArray(value) && value.every(isItem);
const isNullOr = isRight => value => value === null || isRight(value);
const isAbsentOr = isRight => value => value === undefined || isRight(value);
const isRecord = members => value => typeof value === "object" && value !== null && !Array.isArray(value)
    && Object.entries(members).every(([name, isRight]) => isRight(Object.hasOwn(value, name) ? value[name] : undefined));

const isMode = isRecord({ name: isAnyText, color: isColor });

const isUnjudgedPage = isRecord({ tabId: isTabId, site: isText, state: isOneOf("unknown", "asking") });
const isJudgedPage = isRecord({
    tabId: isTabId,
    site: isText,
    state: isOneOf("judged"),
    mode: isNullOr(isMode),
    isCurrent: isFlag,
    what: isAbsentOr(isAnyText),
    certainty: isOneOf("certain", "likely", "unsure"),
    source: isOneOf("rule", "model", "you"),
    isAllowed: isFlag,
});

const types = {
    connected: isRecord({}),
    disconnected: isRecord({}),
    veil: isRecord({ tabId: isTabId, site: isText, mode: isAnyText, color: isColor }),
    unveil: isRecord({ tabId: isTabId }),
    back: isRecord({ tabId: isTabId }),
    open: isRecord({ urls: isListOf(isAnyText) }),
    state: isRecord({ mode: isMode, focus: isFlag, page: isNullOr(page => isUnjudgedPage(page) || isJudgedPage(page)) }),
};

/** The message, when it is one that we know and can rely on; else null. */
export function understood(message) {
    const isNamed = isRecord({ type: isText })(message) && Object.hasOwn(types, message.type);
    return isNamed && types[message.type](message) ? message : null;
}

/** Whether Fendrel has judged that page, and found nothing for which it would stop it in a focus session. */
export function isLetBe({ state, mode, isCurrent, certainty, isAllowed }) {
    return state === "judged" && (!mode || isCurrent || isAllowed || certainty !== "certain");
}

// Animate Text, Slide Text, Color Link, Scroll Text and the clock of Calender: what moves by itself moves, rests when
// a visitor asks for it and goes on. What Scroll Text and the calendars do besides is tested with them.
import assert from "node:assert/strict";
import { at, givePage, pageText, setHidden, styleOf, testEverywhere, watch } from "./harness.mjs";

const animated = await pageText("animate_text_plain");
const slid = await pageText("text_show_plain");
const scrolled = await pageText("scroll_text_plain");

const pointer = (selector) => ["pointer", (page) => page.hover(selector), (page) => page.mouse.move(990, 690)];
const focus = (selector) => ["focus", (page) => page.focus(selector), (page) => page.evaluate(() => document.activeElement.blur())];
const twice = (name, act) => [name, act, act];
const hidden = ["hidden page", (page) => setHidden(page, true), (page) => setHidden(page, false)];

// look tells what is seen of it, which changes within time; calm is that for a visitor who asked for reduced motion.
const moving = [
    {
        name: givePage(animated.replace(/textinterval=\d+/, "textinterval=200"), "animate_text_slow"),
        look: () => document.getElementById("brndfntextanim").getBoundingClientRect().top
            - document.getElementById("brndfntextanim").parentElement.getBoundingClientRect().top,
        rests: [twice("click", (page) => page.locator("#brndfntextanim").click({ force: true })),
            twice("key", (page) => page.locator("#brndfntextanim").press("Enter")), hidden],
        calm: /^0$/,
    },
    {
        name: givePage(slid.replace(/(id="typing"[^>]*>)[^<]*/, `$1${"slow &#x1F40C; ".repeat(200)}`), "text_show_slow"),
        look: () => document.getElementById("typing").innerText,
        rests: [pointer("td:has(#typing)"), hidden],
        calm: /^(slow 🐌 ?){200}$/u,
    },
    {
        name: "dance_text_rich",
        look: () => getComputedStyle(document.getElementsByName("brndfntextshop")[0]).color,
        rests: [pointer("[name=brndfntextshop]"), focus("[name=brndfntextshop]"), hidden],
    },
    {
        name: givePage(scrolled.replace(/(brndfnspeedmore)=.*\r/, "$1=100\r"), "scroll_text_restless"),
        look: () => [...document.querySelectorAll("#brndfnscrollmain2 a")].map((a) => a.getBoundingClientRect().top).join(),
        rests: [pointer("#brndfnscrollmain2"), focus("#brndfnscrollmain2 a"), hidden],
    },
    {
        name: "calander_plain",
        look: () => document.querySelector("[role=timer]").textContent.normalize("NFKC"),
        rests: [pointer("[role=timer]"), focus("[role=timer]"), hidden],
        calm: /^9:05 PM$/,
        time: 1200,
        calmOptions: { before: at("2026-11-22T21:05:07") },
    },
];

// For the option "before": window.nTicks counts the calls of timers and frames.
const countTicks = () => {
    window.nTicks = 0;
    for (const name of ["setTimeout", "setInterval", "requestAnimationFrame"]) {
        const native = window[name];
        window[name] = (fn, ...rest) =>
            native.call(window, typeof fn === "function" ? (...given) => { window.nTicks++; fn(...given); } : fn, ...rest);
    }
};

for (const { name, look, rests, time = 500, calm = /./, calmOptions } of moving) {
    const moves = (page) => watch(page, look, (values) => values.length > 1);
    const stands = async (page, why) => {
        const before = await page.evaluate(look);
        await page.waitForTimeout(time);
        assert.equal(await page.evaluate(look), before, why);
        return String(before);
    };
    testEverywhere(name, "moves, rests when asked to, goes on and ends when it leaves the page", async ({ page }) => {
        await moves(page);
        for (const [why, hold, release] of rests) {
            await hold(page);
            await stands(page, why);
            await release(page);
            await moves(page);
        }
        await page.evaluate(() => document.body.replaceChildren());
        await page.waitForTimeout(1100); // what is due comes once more
        const nTicks = await page.evaluate(() => window.nTicks);
        assert.ok(nTicks > 0);
        await page.waitForTimeout(1100);
        assert.equal(await page.evaluate(() => window.nTicks), nTicks);
    }, { before: countTicks });
    testEverywhere(name, "stands for a visitor who wants calm", async ({ page }) =>
        assert.match(await stands(page), calm), { calm: true, ...calmOptions });
}

const ANIMATED = ["Harvest festival, Saturday 14th\nin the old mill", "New: walks along the river, with a map",
    "All the news, week by week"];
const brief = givePage((await pageText("animate_text_rich")).replace(/layinterval=\d+/, "layinterval=10"), "animate_text_brief");
testEverywhere(brief, "texts rise to their colour, in turn and again", async ({ page }) => {
    const look = () => {
        const text = document.getElementById("brndfntextanim");
        const top = text.getBoundingClientRect().top - text.parentElement.getBoundingClientRect().top;
        return { top, color: getComputedStyle(text).color, text: text.innerText.trim() };
    };
    const seen = await watch(page, look, (values) =>
        new Set(values.map(({ text }) => text)).size > 2 && values.at(-1).text === ANIMATED[0], { milliseconds: 25_000 });
    const order = seen.map(({ text }) => text).filter((text, i, all) => text !== all[i - 1]);
    assert.deepEqual(order, [...ANIMATED, ANIMATED[0]]);
    for (const [i, { top, text }] of seen.entries())
        assert.ok(seen[i + 1]?.text !== text || seen[i + 1].top <= top, "it rises");
    for (const text of ANIMATED)
        assert.ok(seen.some((value) => value.text === text && value.top === 0 && value.color === "rgb(122, 31, 31)"), text);
});

const typed = () => document.getElementById("typing").innerText;
testEverywhere("text_show_rich", "the text is typed character by character, in the author's styles", async ({ page }) => {
    const text = "Fresh bread at eight, cake at three.\nThe shop is open until six.";
    const seen = await watch(page, typed, (texts) => texts.at(-1) === text);
    assert.ok(seen.length > 10 && seen.every((part) => text.startsWith(part.trimEnd())), JSON.stringify(seen));
    assert.deepEqual(await styleOf(page.locator("#typing"), "color", "fontFamily", "fontSize"),
        ["rgb(122, 31, 31)", "Georgia, Times New Roman, serif", "22px"]);
});

testEverywhere("text_show_slow", "a click or Escape shows the whole text, which screen readers have from the start",
    async ({ page }) => {
        for (const finish of [() => page.click("td:has(#typing)"), () => page.keyboard.press("Escape")]) {
            await page.reload();
            const name = await page.getAttribute("#typing", "aria-label");
            assert.match(name, moving[1].calm);
            await finish();
            assert.equal(await page.evaluate(typed), name);
            assert.equal(await page.getAttribute("#typing", "aria-label"), null);
        }
    });

const [, plainLink] = /<body>(.*)<\/body>/s.exec(await pageText("dance_text_plain"));
testEverywhere(givePage((await pageText("dance_text_rich")).replace("</body>", `${plainLink}</body>`)),
    "links of different titles walk through their own colours in order", async ({ page }) => {
        const colors = ["rgb(122, 31, 31)", "rgb(184, 134, 11)", "rgb(47, 79, 47)", "rgb(72, 61, 139)",
            "rgb(0, 139, 139)", "rgb(139, 0, 139)"];
        const shown = await page.evaluate(async () => {
            const seen = { brndfntextshop: [], brndfntextwelcome: [] };
            for (const name of Object.keys(seen)) {
                const [link] = document.getElementsByName(name);
                new MutationObserver(() => seen[name].push(getComputedStyle(link).color))
                    .observe(link, { attributeFilter: ["style"] });
            }
            await new Promise((over) => setTimeout(over, 2000));
            return seen;
        });
        const [rich, plain] = Object.values(shown);
        assert.ok(rich.length > plain.length && plain.length > 0 && rich.length <= 10, JSON.stringify(shown));
        assert.deepEqual(rich, rich.map((_, i) => colors[(colors.indexOf(rich[0]) + i) % colors.length]));
    });

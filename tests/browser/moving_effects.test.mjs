// Animate Text, Slide Text, Color Link, Scroll Text and the clock of Calender: what moves by itself moves, rests when
// a visitor asks for it and goes on. What Scroll Text and the calendars do besides is tested with them.
import assert from "node:assert/strict";
import { at, countTicks, givePage, hurry, nextFrame, pageText, partsOf, running, setCalm, styleOf, tap, testEverywhere, unseen,
    watch } from "./harness.mjs";

const animated = await pageText("animate_text_plain");
const slid = await pageText("text_show_plain");
const linked = await pageText("dance_text_rich");
const scrolled = await pageText("scroll_text_plain");

const pointer = (selector) => ["pointer", (page) => page.hover(selector), (page) => page.mouse.move(990, 690)];
const focus = (selector) => ["focus", (page) => page.focus(selector), (page) => page.evaluate(() => document.activeElement.blur())];
const twice = (name, act) => [name, act, act];
const stopButton = (page) => page.getByRole("button", { name: "Stop the movement" });
const away = (page) => page.mouse.move(990, 690);
const stops = [
    twice("the stop, clicked", async (page) => { await stopButton(page).click(); await away(page); }),
    twice("the stop by key", async (page) => { await stopButton(page).press("Enter"); }),
    twice("the stop, tapped", async (page) => { await tap(page, stopButton(page)); await away(page); }),
];

// look tells what is seen of it, which changes within time; calm is that for a visitor who asked for reduced motion.
const moving = [
    {
        effect: "Animate Text",
        name: givePage(animated.replace(/textinterval=\d+/, "textinterval=200"), "animate_text_slow"),
        look: () => document.getElementById("brndfntextanim").getBoundingClientRect().top
            - document.getElementById("brndfntextanim").parentElement.getBoundingClientRect().top,
        rests: [twice("click", (page) => page.locator("#brndfntextanim").click({ force: true })), ...stops],
        calm: /^0$/,
    },
    {
        effect: "Slide Text",
        name: givePage(slid.replace(/(id="typing"[^>]*>)[^<]*/, `$1${"slow &#x1F40C; ".repeat(200)}`).replace(/"typeit\(\)",\d+/,
            '"typeit()",30'), "text_show_slow"),
        look: () => [...document.getElementById("typing").childNodes].find((part) => part.textContent)?.textContent,
        rests: [pointer("#typing"), ...stops],
        calm: /^(slow 🐌 ?){200}$/u,
    },
    {
        effect: "Color Link",
        name: givePage(linked.replace(/delay = [\d.]+/, "delay = 0.05"), "dance_text_quick"),
        look: () => getComputedStyle(document.getElementsByName("brndfntextshop")[0]).color,
        rests: [pointer("[name=brndfntextshop]"), focus("[name=brndfntextshop]"), ...stops],
    },
    {
        effect: "Scroll Text",
        name: givePage(scrolled.replace(/(brndfnspeedmore)=.*\r/, "$1=0\r"), "scroll_text_restless"),
        look: () => [...document.querySelectorAll("#brndfnscrollmain2 a")].map((a) => a.getBoundingClientRect().top).join(),
        rests: [pointer("#brndfnscrollmain2"), focus("#brndfnscrollmain2 a"), ...stops],
    },
    {
        effect: "Calender",
        name: "calander_plain",
        look: () => document.querySelector("[role=timer]").textContent.normalize("NFKC"),
        rests: [pointer("[role=timer]"), focus("[role=timer]"), ["a tap", (page) => tap(page, page.locator("[role=timer]")),
            (page) => tap(page, { x: 990, y: 690 })]],
        calm: /^9:05 PM$/,
        time: 220,
        before: `(${hurry})(); (${countTicks})()`,
        calmOptions: { before: at("2026-11-22T21:05:07") },
    },
];

for (const { effect, name, look, rests, time = 150, before = countTicks, calm = /./, calmOptions } of moving) {
    const moves = (page) => watch(page, look, (values) => values.length > 1);
    const stands = async (page, why) => {
        await nextFrame(page);
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
        for (const [why, hold, release] of unseen) {
            await hold(page);
            assert.deepEqual(await running(page, time), [0, 0], why);
            await release(page);
            await moves(page);
        }
        await page.evaluate(() => document.body.replaceChildren());
        assert.deepEqual(await running(page, time), [0, 0]);
    }, { before, shows: { [effect]: ["mouse", "keys", "touch"] } });
    testEverywhere(name, "stands for a visitor who wants calm", async ({ page }) => {
        assert.match(await stands(page), calm);
        if (effect !== "Animate Text") // whose texts still change, one for another
            assert.equal(await stopButton(page).count(), 0, "nothing to stop");
    }, { calm: true, ...calmOptions });
    if (!["Animate Text", "Calender"].includes(effect))
        testEverywhere(name, "comes to rest when the wish for calm comes later", async ({ page }) => {
            await moves(page);
            await setCalm(page, true);
            await stands(page);
            if (effect !== "Slide Text") { // which has shown its text
                await setCalm(page, false);
                await moves(page);
            }
        });
}

testEverywhere("scroll_text_restless", "its stop says what it does and its state, in the page's language", async ({ page }) => {
    for (const [language, label] of [["de-AT", "Bewegung anhalten"], ["xx", "Stop the movement"]]) {
        await page.evaluate((lang) => {
            document.documentElement.lang = lang;
            document.body.append(window.brndfn.stop({ pause() {}, resume() {} }, "line").element);
        }, language);
        const stop = page.getByRole("button", { name: label }).last();
        for (const pressed of ["false", "true", "false"]) {
            assert.equal(await stop.getAttribute("aria-pressed"), pressed);
            await stop.click();
        }
    }
});

const ANIMATED = ["Harvest festival, Saturday 14th\nin the old mill", "New: walks along the river, with a map",
    "All the news, week by week"];
const rich = await pageText("animate_text_rich");
const brief = (text) => text.replace(/(text|lay)interval=\d+/g, "$1interval=5");
// A stylesheet of the page's colours what it can; the author's own colour of a word stays.
const framework = "<style>p, a { color: rgb(9, 9, 9); margin: 0 } * { box-sizing: border-box }</style>";
testEverywhere(givePage(framework + brief(rich)), "texts rise to their colour, in turn and again", async ({ page }) => {
    const look = () => {
        const text = document.getElementById("brndfntextanim");
        const top = text.getBoundingClientRect().top - text.parentElement.getBoundingClientRect().top;
        return { top, color: getComputedStyle(text.querySelector("p > :not(br), p")).color, text: text.innerText.trim() };
    };
    const seen = await watch(page, look, (values) =>
        new Set(values.map(({ text }) => text)).size > 2 && values.at(-1).text === ANIMATED[0], { milliseconds: 40_000 });
    const order = seen.map(({ text }) => text).filter((text, i, all) => text !== all[i - 1]);
    assert.deepEqual(order, [...ANIMATED, ANIMATED[0]]);
    for (const [i, { top, text }] of seen.entries())
        assert.ok(seen[i + 1]?.text !== text || seen[i + 1].top <= top, "it rises");
    for (const text of ANIMATED)
        assert.ok(seen.some((value) => value.text === text && value.top === 0 && value.color === "rgb(122, 31, 31)"), text);
});

const LONG = "a long text ".repeat(60);
testEverywhere(givePage(animated.replace(/(message\[0\]='<p[^>]*>)[^<]*/, `$1${LONG}`)),
    "a text taller than its box makes it taller and spills over nothing", async ({ page }) => {
        const spill = await page.evaluate(() => {
            const text = document.getElementById("brndfntextanim");
            return text.offsetHeight - text.parentElement.clientHeight;
        });
        assert.ok(spill <= 0, `${spill} px`);
    });

const typed = () => document.getElementById("typing").firstChild.textContent;
testEverywhere("text_show_rich", "the text is typed character by character, in the author's styles", async ({ page }) => {
    const text = "Fresh bread at eight, cake at three.\nThe shop is open until six.";
    const height = () => page.evaluate(() => document.documentElement.scrollHeight);
    const before = await height();
    const seen = await watch(page, typed, (texts) => texts.at(-1) === text);
    assert.equal(await height(), before, "the page isn't pushed");
    assert.ok(seen.length > 10 && seen.every((part) => text.startsWith(part)), JSON.stringify(seen));
    assert.deepEqual(await styleOf(page.locator("#typing"), "color", "fontFamily", "fontSize"),
        ["rgb(122, 31, 31)", "Georgia, Times New Roman, serif", "22px"]);
    assert.equal(await stopButton(page).count(), 0, "nothing left to stop");
});

testEverywhere("text_show_slow", "a click, a tap or Escape shows the whole text, which screen readers have from the start",
    async ({ page }) => {
        for (const finish of [() => page.click("#typing"), () => tap(page, page.locator("#typing")), () => page.keyboard.press("Escape")]) {
            await page.reload();
            assert.match(await page.locator("#typing").innerText(), moving[1].calm);
            assert.ok((await page.evaluate(typed)).length < 1000);
            await finish();
            assert.match(await page.evaluate(typed), moving[1].calm);
        }
    });

const slidBody = (text) => /<table[^]*<\/table>/.exec(slid)[0].replace(/(id="typing"[^>]*>)[^<]*/, `$1${text}`);
testEverywhere(givePage(slid.replace(/<table[^]*<\/table>/, () =>
    `${slidBody("One")}<details>${slidBody("Two<br>lines")}</details>`)), "two of them type their own, in a hidden panel too",
async ({ page }) => {
    const texts = () => page.locator("[id=typing]").evaluateAll((all) => all.map((one) => one.firstChild.textContent));
    await watch(page, () => document.querySelector("[id=typing]").firstChild.textContent, (seen) => seen.at(-1) === "One");
    assert.equal((await texts())[1], "", "what nobody sees isn't typed");
    await page.locator("details").evaluate((panel) => (panel.open = true));
    await page.waitForFunction(() => document.querySelectorAll("[id=typing]")[1].firstChild.textContent === "Two\nlines");
});

const { body: plainLink } = await partsOf("dance_text_plain");
testEverywhere(givePage(linked.replace("</body>", `${plainLink}</body>`)),
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

testEverywhere(givePage(linked.replace(/delay = [\d.]+/, "delay = 0")), "without a delay the colour changes once a frame at most",
    async ({ page }) => {
        const [nChanges, nFrames] = await page.evaluate(async () => {
            let [nChanged, nShown] = [0, 0];
            const [link] = document.getElementsByName("brndfntextshop");
            new MutationObserver((records) => (nChanged += records.length)).observe(link, { attributeFilter: ["style"] });
            while (nShown++ < 20)
                await new Promise(requestAnimationFrame);
            return [nChanged, nShown];
        });
        assert.ok(nChanges > 3 && nChanges <= nFrames + 1, `${nChanges} changes in ${nFrames} frames`);
    });

// What can be seen of an element while the page is printed: the text of its parts that lie within it.
const notePrinted = (selector) => {
    const seen = (part, { top, bottom }) => {
        const edges = part.getBoundingClientRect();
        return part.checkVisibility({ opacityProperty: true }) && edges.top >= top - 1 && edges.bottom <= bottom + 1;
    };
    window.addEventListener("beforeprint", () => {
        const box = document.querySelector(selector);
        window.printed = [...box.querySelectorAll("p, a, span > span")]
            .filter((part) => seen(part, box.getBoundingClientRect())).map((part) => part.innerText).join("|");
    });
};
const print = async (page, selector) => {
    await page.evaluate(notePrinted, selector);
    await page.pdf();
    return page.evaluate(() => window.printed);
};
for (const [name, selector, expected] of [
    ["animate_text_rich", "div:has(> #brndfntextanim)", new RegExp(ANIMATED.join(".*"), "s")],
    ["text_show_slow", "#typing", moving[1].calm],
    ["scroll_text_rich", "#brndfnscrollmain2", /Saturday.*Choir.*Fen/s],
])
    testEverywhere(name, "is printed whole, and goes on", async ({ page }) => {
        const before = (await page.locator(selector).boundingBox()).height;
        assert.match((await print(page, selector)).replaceAll("|", name === "text_show_slow" ? "" : "|"), expected);
        assert.equal((await page.locator(selector).boundingBox()).height, before);
    });

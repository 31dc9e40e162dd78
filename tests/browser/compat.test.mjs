import assert from "node:assert/strict";
import { givePage, styleOf, testEverywhere } from "./harness.mjs";

const include = '<script src="orrelix-compat.js"></script>';

// Declarations as generated text has them, and as they have to be for the author's choice to show.
const repairs = [
    ["top:100; left:0; margin:-2 0.5 .5 1em", "top:100px; left:0; margin:-2px 0.5px .5px 1em"],
    ["border:2 inset #ff6820; background:8b8b00;", "border:2px inset #ff6820; background:#8b8b00;"],
    ["border: 100 solid 123; border-color:100 200", "border: 100px solid #123; border-color:#100 #200"],
    ["background:000000; BACKGROUND: fff; color:32cd32", "background:#000000; BACKGROUND: #fff; color:#32cd32"],
    ["background:url(1 2.gif?a;b) 8b8b00", "background:url(1 2.gif?a;b) 8b8b00"],
    ["background:url('a;b 12.gif') 8b8b00", "background:url('a;b 12.gif') #8b8b00"],
    ["padding-Top: 1 !important; clip:rect(0 100 50 0)", "padding-Top: 1px !important; clip:rect(0 100px 50px 0)"],
    ["font-family:@Fixedsys,8514oem, Arial", 'font-family:"@Fixedsys","8514oem", Arial'],
    ["cursor: hand; /* a:b; */width:10", "cursor: pointer; /* a:b; */width:10px"],
    ["font-weight:700; line-height:2; z-index:3; content:'5 ; 6'", null],
    ["color: #; font-size:px; border:0  #; font-family:; 1 none #ffffff; color: red", null],
];

testEverywhere(givePage(include), "what a browser would drop of a style is repaired, and nothing else", async ({ page }) => {
    for (const [given, wanted] of repairs) {
        const [once, twice] = await page.evaluate((text) => {
            const repaired = window.brndfn.css(text);
            return [repaired, window.brndfn.css(repaired)];
        }, given);
        assert.equal(once, wanted ?? given);
        assert.equal(twice, once, "repairing again changes nothing");
    }
});

const markup = `${include}<p id="other" style="left:7">x</p><div id="own" style="width:70"><b style="color:32cd32">b</b>
    <style>#own i {border:3 solid #00ff00; } #own u {width:5px}</style><i>i</i></div>`;

testEverywhere(givePage(markup), "the repair keeps to the element it was asked for", async ({ page }) => {
    await page.evaluate(() => window.brndfn.repair(document.getElementById("own")));
    const style = async (selector, name) => (await styleOf(page.locator(selector), name))[0];
    assert.equal(await style("#own", "width"), "70px");
    assert.equal(await style("#own b", "color"), "rgb(50, 205, 50)");
    assert.equal(await style("#own i", "borderTopWidth"), "3px");
    assert.equal(await page.getAttribute("#other", "style"), "left:7");
});

// The page's own script finds what the browser gives, falsy; the text of an effect, known by a name in it, a truthy one.
const sniffs = (mark) => `<script>/* ${mark} */ (window.sniffed ??= []).push(Boolean(document.all), document.all != null)</script>`;
const collections = `${include}<a id="first" href="#1">1</a><a name="second" href="#2">2</a>
    ${sniffs("old page")}${["brndfnscrollmain2", "LinkinitSelectBox(", "writeSelectBox(topArray"].map(sniffs).join("")}
    <script>window.early = document.links("second").href.slice(-2)</script><area href="#3">`;

testEverywhere(givePage(collections), "document.all and document.links are as the old text expects", async ({ page }) => {
    const seen = await page.evaluate(() => {
        document.body.append(Object.assign(document.createElement("a"), { href: "#4" }));
        return [
            window.sniffed.join(), Boolean(document.all), typeof document.all, document.links instanceof HTMLCollection,
            document.all("first").id, document.all.first.id, document.all.item("first").id,
            document.all.tags("A").length, document.all(0).tagName,
            window.early, document.links(1).name, document.links("nowhere"),
            Array.from(document.links, (link) => link.hash).join(),
        ];
    });
    assert.deepEqual(seen, ["false,false,true,true,true,true,true,true", false, "undefined", true, "first", "first", "first",
        3, "HTML", "#2", "second", null, "#1,#2,#3,#4"]);
});

const handlers = `<script>window.calls = []; window.onload = () => calls.push("page")</script>${include}${include}
    <body onload="calls.push('body')">
    <script>
    function effect() { calls.push("effect") }
    window.onload = effect;
    document.body.onload = effect;
    document.body.onload = () => { calls.push("failing"); throw new Error("on purpose") };
    const old = window.onload;
    window.onload = (event) => { old(event); calls.push("wrapper") };
    </script>`;

testEverywhere(givePage(handlers), "no load handler is lost, none runs twice", async ({ page, errors }) => {
    assert.deepEqual(await page.evaluate(() => window.calls), ["page", "body", "effect", "failing", "wrapper"]);
    const [complaint, ...others] = errors.splice(0);
    assert.match(complaint, /on purpose/);
    assert.deepEqual(others, []);
});

const chained = `${include}<script>
    window.calls = [];
    const note = (name, old) => () => { old?.(); calls.push(name); };
    window.onload = note("effect");
    window.onload = note("first", window.onload);
    window.onload = note("second", window.onload);
    </script>`;

testEverywhere(givePage(chained), "a handler that is called again calls those before it, each once", async ({ page }) => {
    assert.deepEqual(await page.evaluate(() => window.calls.splice(0)), ["effect", "first", "second"]);
    await page.evaluate(() => window.onload());
    assert.deepEqual(await page.evaluate(() => window.calls), ["effect", "first", "second"]);
});

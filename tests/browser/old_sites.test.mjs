// Sites made long ago, as docs/old_sites.md revives them: the pages stay as they are, the shipped scripts take the places
// of the old ones, and the two effects without a script get the compatibility script. The pages here are put together
// from the texts that the component has to give, in the form for the preview and in the published one.
import assert from "node:assert/strict";
import { copyFileSync, mkdirSync, readdirSync, readFileSync, rmSync, writeFileSync } from "node:fs";
import path from "node:path";
import { goOn, testEverywhere } from "./harness.mjs";

const SHIPPED = path.join(process.env.ORRELIX_PROGRAM, "../../lib");
const TEXTS = path.resolve(import.meta.dirname, "../expected");
const IMAGES = path.resolve(import.meta.dirname, "../../examples");

async function opens(page) {
    await page.getByRole("combobox").click();
    await page.getByRole("option").first().waitFor();
}

// By effect: the script file of its page and what a visitor sees of it, given the page.
const EFFECTS = {
    animate_text: ["animate.js", (page) => page.getByText("Harvest festival").waitFor()],
    text_show: ["", (page) => page.waitForFunction(() =>
        /^F.*\nThe shop/.test(document.getElementById("typing").firstChild.textContent))],
    calander: ["calander2.js", (page) => page.locator("[aria-current=date]").waitFor()],
    cool_link: ["select.js", opens],
    scroll_text: ["scrolltext.js", (page) => page.getByText("The mill is open").waitFor()],
    fade_select: ["fadeselect.js", opens],
    tool_tip: ["tooltip.js", (page) => page.locator("[tooltip]").hover().then(() => page.getByRole("tooltip").waitFor())],
    today_ca: ["todayca.js", (page) => page.locator("[aria-current=date]").waitFor()],
    dance_text: ["", (page) => page.waitForFunction(() => {
        const { color } = document.getElementsByName("brndfntextshop")[0].style;
        window.colors = (window.colors ?? new Set()).add(color);
        return window.colors.size > 2;
    })],
};

// What the component has to give for an effect, such as part("cursor, publish").
function partsOf(effect) {
    const pieces = readFileSync(path.join(TEXTS, `${effect}_rich.html`), "latin1").split(/^<!-- (\w+, \w+) -->\r?\n/m);
    return (name) => pieces[pieces.indexOf(name) + 1 || pieces.length] ?? "";
}

function copyAll(from, to, ending, rename = (name) => name) {
    mkdirSync(to, { recursive: true });
    for (const name of readdirSync(from).filter((file) => file.endsWith(ending)))
        copyFileSync(path.join(from, name), path.join(to, rename(name)));
}

// Gives the page's name for the harness.
function revive(effect, form, script) {
    const folder = path.join(site, form, effect);
    const part = partsOf(effect);
    const bBeside = form === "preview" || !script;
    copyAll(IMAGES, path.join(folder, form === "preview" ? "" : "images"), ".gif");
    copyAll(SHIPPED, path.join(folder, bBeside ? "" : "scripts"), ".js", (name) => (name.toLowerCase() === script ? script : name));
    const added = script ? "" : '<script src="orrelix-compat.js"></script>';
    writeFileSync(path.join(folder, "index.html"), `<HTML><HEAD><TITLE>Old</TITLE>
        <META HTTP-EQUIV="Content-Type" CONTENT="text/html; charset=gb2312">${added}${part(`script, ${form}`)}</HEAD>
        <BODY BGCOLOR=#ffffff><CENTER><FONT FACE=Arial>Welcome</FONT></CENTER>${part(`cursor, ${form}`)}</BODY></HTML>`, "latin1");
    return `old/${form}/${effect}/index`;
}

const site = path.join(process.env.ORRELIX_PAGES, "old");
rmSync(site, { recursive: true, force: true });
for (const form of ["preview", "publish"]) {
    const pages = Object.entries(EFFECTS).map(([effect, [script, works]]) => [revive(effect, form, script), works]);
    testEverywhere(pages[0][0], "old pages work with the shipped scripts", async ({ page }) => {
        for (const [name, works] of pages) {
            await goOn(page, name);
            await works(page);
        }
    });
}

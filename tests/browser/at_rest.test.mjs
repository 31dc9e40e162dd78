// What is left of an effect where its scripts may not run, and what runs of one that nobody sees.
import assert from "node:assert/strict";
import { countTicks, givePage, pageText, running, tap, testEverywhere, unseen } from "./harness.mjs";

// Under a policy that forbids inline scripts: what is left to read, and a link that works.
const POLICY = `<meta http-equiv="Content-Security-Policy" content="script-src 'self'">`;
for (const [name, selector, left] of [
    ["animate_text_rich", "#brndfntextanim", ""],
    ["text_show_rich", "#typing", "Fresh bread at eight, cake at three. The shop is open until six."],
    ["calander_rich", "table", ""],
    ["cool_link_rich", "#museum", "Home, sweet home Library Write to us No address"],
    ["scroll_text_rich", "table", ""],
    ["fade_select_rich", "table", ""],
    ["tool_tip_rich", "[tooltip]", "When is the mill open?"],
    ["today_ca_rich", "table:has(input)", "VII I II III IV V VI"],
    ["dance_text_rich", "[name=brndfntextshop]:any-link", "Visit our shop"],
])
    testEverywhere(givePage((await pageText(name)).replace("<head>", `<head>${POLICY}`), `${name}_policy`),
        "throws nothing and hides nothing", async ({ page, errors }) => {
            assert.equal((await page.locator(selector).innerText()).replaceAll(/\s+/g, " ").trim(), left);
            const complaints = errors.splice(0);
            assert.ok(complaints.length > 0 && complaints.every((complaint) => /Content.Security.Policy/.test(complaint)),
                JSON.stringify(complaints));
        });

// Those that move by themselves are in moving_effects.test.mjs.
for (const [name, open, moves] of [
    ["tool_tip_plain", (page) => page.hover("[tooltip]"), "[role=tooltip]:visible"],
    ["tool_tip_plain", (page) => tap(page, page.locator("[tooltip]")), "[role=tooltip]:visible"],
    ["cool_link_rich", (page) => page.getByRole("combobox").click()],
    ["fade_select_rich", (page) => page.getByRole("combobox").click()],
    ["today_ca_rich", (page) => page.getByRole("button", { name: "Next month" }).click()],
])
    testEverywhere(name, "has no timer and no frame where nobody sees it", async ({ page }) => {
        await open(page);
        if (moves) {
            await page.locator(moves).waitFor();
            assert.notDeepEqual(await running(page, 150), [0, 0], "a tip moves");
        }
        for (const [why, hold, release] of unseen) {
            await hold(page);
            await page.waitForTimeout(600); // what fades in or out has done so
            assert.deepEqual(await running(page, 150), [0, 0], why);
            await release(page);
        }
    }, { before: countTicks });

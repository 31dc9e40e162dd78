// Makes the moving pictures of the effects, from the effects' own pages in Chromium:
//
//     node qt/pictures/make.mjs build/release/bin/orrelix
//
// A picture is a strip of frames side by side, which packs better than one below the other, with a small
// palette. CMovingPicture plays it and knows the size of a frame.
import { execFileSync } from "node:child_process";
import { mkdtempSync, rmSync, writeFileSync } from "node:fs";
import { createRequire } from "node:module";
import os from "node:os";
import path from "node:path";
import { crc32, deflateSync } from "node:zlib";

const here = import.meta.dirname;
const root = path.resolve(here, "../..");
const { chromium } = createRequire(path.join(root, "tests/browser/package.json"))("playwright-core");

const WIDTH = 480, HEIGHT = 300, COLOURS = 128;
const NOW = new Date(2025, 4, 14, 10, 9); // what the calendars show

// What a visitor does before a frame.
const pointAt = (x, y) => (page) => page.mouse.move(x, y);
const click = (x, y) => (page) => page.mouse.click(x, y);
const openList = { 2: click(378, 207), 5: pointAt(200, 262), 7: pointAt(200, 292), 9: pointAt(200, 322) };

// What of an effect's page is shown: the place of the frame (left, top, width; the height follows), how many frames
// after how many milliseconds, how many each stands for, and the visitor's acts by frame. What rests at first
// is shown from when it begins to move.
const PICTURES = {
    animate_text: { area: [82, 111, 448], after: 12400, frames: 12, every: 300 },
    text_show: { area: [45, 6, 624], after: 400, frames: 13, every: 350 },
    calander: { area: [352, 136, 408], after: 500, frames: 4, every: 1000 },
    cool_link: { area: [110, 140, 400], after: 500, frames: 12, every: 200, acts: openList },
    scroll_text: { area: [233, 88, 336], after: 500, frames: 12, every: 2000, rests: true },
    fade_select: { area: [100, 140, 400], after: 500, frames: 12, every: 150, acts: openList },
    tool_tip: { area: [40, 50, 400], after: 500, frames: 10, every: 250, acts: { 2: pointAt(110, 149) } },
    today_ca: { area: [360, 135, 440], after: 500, frames: 12, every: 200,
                acts: { 3: click(717, 189), 6: click(717, 189), 9: click(717, 189) } },
    dance_text: { area: [40, 53, 344], after: 300, frames: 12, every: 200 },
};

// The page around the effect isn't wanted.
const PLAIN = `html, body { background: white !important } main, section, article { box-shadow: none !important;
    border-color: transparent !important } h1, h1 + p { visibility: hidden }`;

async function takeFrames(browser, url, { area: [x, y, width], after, frames, every, acts = {}, rests = false }) {
    const page = await browser.newPage({
        viewport: { width: 800, height: 600 }, deviceScaleFactor: WIDTH / width,
    });
    await page.clock.install({ time: NOW });
    await page.clock.pauseAt(new Date(NOW.getTime() + 60000)); // from here on time runs as it is told
    await page.goto(url);
    await page.addStyleTag({ content: PLAIN });
    await page.waitForTimeout(300); // the browser's own time, in which the page learns what is in view
    await page.clock.runFor(after);
    const clip = { x, y, width, height: (width * HEIGHT) / WIDTH };
    const shoot = async () => (await page.screenshot({ clip })).toString("base64");
    for (let before = await shoot(), step = 0; rests && step < 200 && (await shoot()) === before; ++step)
        await page.clock.runFor(200);
    const shots = [];
    for (let frame = 0; frame < frames; ++frame) {
        await acts[frame]?.(page);
        await page.clock.runFor(every);
        shots.push(await shoot());
    }
    await page.close();
    return shots;
}

// In a page of its own: the frames side by side, as a palette and an index into it for each pixel. Colours are
// rounded until few enough are left.
async function indexColours({ shots, WIDTH, HEIGHT, COLOURS }) {
    const canvas = new OffscreenCanvas(WIDTH * shots.length, HEIGHT);
    const context = canvas.getContext("2d", { willReadFrequently: true });
    for (const [frame, shot] of shots.entries()) {
        const bytes = await (await fetch(`data:image/png;base64,${shot}`)).blob();
        context.drawImage(await createImageBitmap(bytes), 0, 0, WIDTH, HEIGHT, frame * WIDTH, 0, WIDTH, HEIGHT);
    }
    const { data } = context.getImageData(0, 0, canvas.width, HEIGHT);
    for (let levels = 64; ; levels -= 4) {
        const round = (value) => Math.round((Math.round((value * levels) / 255) * 255) / levels);
        const numbers = new Map();
        const indices = new Uint8Array(data.length / 4);
        for (let i = 0; i < indices.length && numbers.size <= COLOURS; ++i) {
            const colour = (round(data[4 * i]) << 16) | (round(data[4 * i + 1]) << 8) | round(data[4 * i + 2]);
            if (!numbers.has(colour))
                numbers.set(colour, numbers.size);
            indices[i] = numbers.get(colour);
        }
        if (numbers.size <= COLOURS) {
            let text = "";
            for (let i = 0; i < indices.length; i += 8192)
                text += String.fromCharCode(...indices.subarray(i, i + 8192));
            return { width: canvas.width, palette: [...numbers.keys()], indices: btoa(text) };
        }
    }
}

function chunk(type, data) {
    const bytes = Buffer.concat([Buffer.from(type), data]);
    const ends = Buffer.alloc(8);
    ends.writeUInt32BE(data.length, 0);
    ends.writeUInt32BE(crc32(bytes), 4);
    return Buffer.concat([ends.subarray(0, 4), bytes, ends.subarray(4)]);
}

function encodePng({ width, palette, indices }) {
    const header = Buffer.from([0, 0, 0, 0, 0, 0, 0, 0, 8, 3, 0, 0, 0]); // 8 bits, with a palette
    header.writeUInt32BE(width, 0);
    header.writeUInt32BE(HEIGHT, 4);
    const pixels = Buffer.from(indices, "base64");
    const rows = Array.from({ length: HEIGHT }, (_, y) =>
        Buffer.concat([Buffer.from([0]), pixels.subarray(y * width, (y + 1) * width)]));
    return Buffer.concat([
        Buffer.from([0x89, 0x50, 0x4e, 0x47, 0x0d, 0x0a, 0x1a, 0x0a]),
        chunk("IHDR", header),
        chunk("PLTE", Buffer.from(palette.flatMap((colour) => [colour >> 16, (colour >> 8) & 255, colour & 255]))),
        chunk("IDAT", deflateSync(Buffer.concat(rows), { level: 9, memLevel: 9 })),
        chunk("IEND", Buffer.alloc(0)),
    ]);
}

const program = process.argv[2];
if (!program)
    throw new Error("usage: node qt/pictures/make.mjs PROGRAM");
const pages = mkdtempSync(path.join(os.tmpdir(), "orrelix-pictures-"));
const examples = Object.keys(PICTURES).map((name) => path.join(root, "examples", `${name}_rich.cfg`));
execFileSync(program, ["preview", ...examples, "--out", pages, "--code-page", "936"]);
const browser = await chromium.launch({
    executablePath: process.env.CHROMIUM ?? "/usr/bin/chromium", args: ["--no-sandbox", "--disable-gpu"],
});
const blank = await browser.newPage();
let total = 0;
for (const [name, picture] of Object.entries(PICTURES)) {
    const shots = await takeFrames(browser, `file://${pages}/${name}_rich.html`, picture);
    const png = encodePng(await blank.evaluate(indexColours, { shots, WIDTH, HEIGHT, COLOURS }));
    writeFileSync(path.join(here, `${name}.png`), png);
    total += png.length;
    console.log(`${name}: ${shots.length} frames, ${png.length} bytes`);
}
console.log(`${total} bytes in all`);
await browser.close();
rmSync(pages, { recursive: true });

// Includes point down only, and never in a circle.
import assert from "node:assert/strict";
import { execFileSync } from "node:child_process";
import { readFileSync } from "node:fs";
import path from "node:path";
import test from "node:test";

const root = path.resolve(import.meta.dirname ?? path.dirname(new URL(import.meta.url).pathname), "..");

// What the files of a folder may include. A file's own row goes before its folder's.
const mayInclude = {
    "platform": ["platform"],
    "toolkit": ["toolkit", "platform"],
    "resources": ["resources", "toolkit", "platform"],
    "controls": ["controls", "resources", "toolkit", "platform"],
    "core": ["core", "platform"],
    "core/image_files": ["core", "dialogs/copy_resources", "platform"],
    "core/orrelix": ["core", "gadgets", "dialogs", "resources", "toolkit", "platform"],
    "gadgets": ["gadgets", "core", "resources", "platform"],
    "dialogs": ["dialogs", "gadgets", "core", "controls", "resources", "toolkit", "platform"],
    "qt": ["qt", "toolkit", "platform"],
    "host": ["host", "core", "toolkit", "resources", "platform"],
};

const stem = (file) => file.replace(/\.\w+$/, "");
const folder = (file) => file.split("/")[0];

const files = execFileSync("git", ["ls-files", "*.h", "*.cpp"], { cwd: root, encoding: "utf8" })
    .trim().split("\n").filter((file) => folder(file) in mayInclude);
const includes = new Map(files.map((file) => [
    file,
    [...readFileSync(path.join(root, file), "utf8").matchAll(/^#include "([^"]+)"/gm)].map((found) => found[1]),
]));

test("includes point down only", () => {
    for (const [file, included] of includes) {
        const allowed = mayInclude[stem(file)] ?? mayInclude[folder(file)];
        for (const other of included) {
            assert.ok(allowed.includes(folder(other)) || allowed.includes(stem(other)),
                `${file} includes ${other}, but files there may include ${allowed.join(", ")} only`);
        }
    }
});

test("headers include each other in no circle", () => {
    const done = new Set();
    const visit = (file, way) => {
        assert.ok(!way.includes(file), `a circle: ${[...way, file].join(" > ")}`);
        if (!done.has(file)) {
            (includes.get(file) ?? []).forEach((other) => visit(other, [...way, file]));
            done.add(file);
        }
    };
    files.filter((file) => file.endsWith(".h")).forEach((file) => visit(file, []));
});

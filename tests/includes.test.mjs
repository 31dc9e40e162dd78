// Includes point down only, and never in a circle.
import assert from "node:assert/strict";
import { execFileSync } from "node:child_process";
import { readFileSync } from "node:fs";
import path from "node:path";
import test from "node:test";

const root = path.resolve(import.meta.dirname ?? path.dirname(new URL(import.meta.url).pathname), "..");

// The picture: who stands directly on whom. A file's own row goes before its folder's.
const standsOn = new Map(
    [...readFileSync(path.join(root, "docs/architecture.md"), "utf8").matchAll(/^([\w/]+) +──► (.+)$/gm)].map(
        ([, upper, lower]) => [upper, lower.split(", ")]));

const stem = (file) => file.replace(/\.\w+$/, "");
const folder = (file) => file.split("/")[0];

const rowOf = (file) => (standsOn.has(stem(file)) ? stem(file) : folder(file));

const sources = execFileSync("git", ["ls-files", "*.h", "*.cpp"], { cwd: root, encoding: "utf8" })
    .trim().split("\n").filter((file) => !["tests", "fuzz", "bench", "examples"].includes(folder(file)));
const includes = new Map(sources.map((file) => [
    file,
    [...readFileSync(path.join(root, file), "utf8").matchAll(/^#include "([^"]+)"/gm)].map((found) => found[1]),
]));

// Everything that can be reached from a node; fails on a way back to where it came from.
function below(node, next, way = []) {
    assert.ok(!way.includes(node), `a circle: ${[...way, node].join(" > ")}`);
    return new Set([node, ...(next(node) ?? []).flatMap((other) => [...below(other, next, [...way, node])])]);
}

test("includes point down only", () => {
    assert.ok(standsOn.size > 5, "docs/architecture.md has no picture");
    const allowed = new Map([...standsOn.keys(), "include"].map((row) => [row, below(row, (of) => standsOn.get(of))]));
    for (const [file, included] of includes) {
        assert.ok(allowed.has(rowOf(file)), `${file} has no row in the picture`);
        for (const other of included)
            assert.ok(allowed.get(rowOf(file)).has(rowOf(other)), `${file} includes ${other}`);
    }
});

test("headers include each other in no circle", () => {
    const done = new Set();
    const next = (file) => (done.has(file) ? [] : (done.add(file), includes.get(file)));
    sources.filter((file) => file.endsWith(".h")).forEach((file) => below(file, next));
});

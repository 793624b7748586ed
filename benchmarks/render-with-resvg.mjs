// Renders an SVG file to a PNG file: node render-with-resvg.mjs MODULE-FOLDER IN.svg OUT.png [WIDTH]
import { createRequire } from "node:module";
import { readFileSync, writeFileSync } from "node:fs";

const [folder, input, output, width] = process.argv.slice(2);
const { Resvg } = createRequire(`${folder}/`)("@resvg/resvg-js");
const options = width ? { fitTo: { mode: "width", value: Number(width) } } : {};
writeFileSync(output, new Resvg(readFileSync(input), options).render().asPng());

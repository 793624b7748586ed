// Renders an SVG file to a PNG file: node render-with-resvg.mjs MODULE-FOLDER IN.svg OUT.png
import { createRequire } from "node:module";
import { readFileSync, writeFileSync } from "node:fs";

const [folder, input, output] = process.argv.slice(2);
const { Resvg } = createRequire(`${folder}/`)("@resvg/resvg-js");
writeFileSync(output, new Resvg(readFileSync(input)).render().asPng());

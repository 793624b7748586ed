// Renders an SVG file to a PNG file with the librsvg that sharp brings: node render-with-sharp.mjs MODULE-FOLDER IN.svg OUT.png
import { createRequire } from "node:module";

const [folder, input, output] = process.argv.slice(2);
const sharp = createRequire(`${folder}/`)("sharp");
await sharp(input, { unlimited: true }).png().toFile(output);

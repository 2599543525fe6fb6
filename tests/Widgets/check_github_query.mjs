// Whether what the program asks GitHub is valid by the schema that GitHub publishes.
// usage: check_github_query.mjs PACKAGES PROGRAM; PACKAGES is the folder that tools/schemas fills.
import { execFileSync } from "node:child_process";
import { existsSync, readFileSync } from "node:fs";
import { createRequire } from "node:module";

const [packages, program] = process.argv.slice(2);
const published = `${packages}/@octokit/graphql-schema/schema.graphql`;
if (!existsSync(published)) {
    console.log("Skipped: GitHub's schema is not here. tools/schemas fetches it.");
    process.exit(77);
}
const { buildSchema, parse, validate } = createRequire(`${packages}/`)("graphql");

const schema = buildSchema(readFileSync(published, "utf8"), { assumeValidSDL: true });
const { query } = JSON.parse(execFileSync(program, { encoding: "utf8" }));
const errors = validate(schema, parse(query));
for (const error of errors)
    console.error(String(error));
// A check that takes everything would be none.
const isStrict = validate(schema, parse(query.replace("totalCount", "totalCounts"))).length > 0;
if (!isStrict)
    console.error("The check takes a field that there is not.");
process.exit(errors.length === 0 && isStrict ? 0 : 1);

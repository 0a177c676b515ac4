% LIST = LAW_LIST ()  every force law that the toolbox knows: one struct array, one element a law, each from a file of +laws
%
%   kind        word in qn.law
%   keyword     word by which the module knows it
%   parameters  rows {name, default, sort}; a default of '<required>' has to be given. Sort is 'number', 'positive' (a number above 0),
%               'not negative' (from 0), 'fraction' (between 0 and 1), 'sign' (1 or -1), 'list', 'ascending list' or 'positive list'; the
%               lists of a law have one length. 'knots' (two or more, any number of them) span a 'grid' (a matrix); "prepare"
%               looks at both. For laws of the user's also 'free list' (of any length), 'count' (from 1),
%               'whole' (from 0), 'text', and, in front, 'file' or 'function', whose name may be left out
%   pack        [OPT, OWN] = pack (P, STEP): "opt" with the keyword's code in front, and what follows the five common values of "iopt"
%   unpack      P = unpack (OPT, IOPT): the parameters again; [] where qn.law cannot give such an element
%   words       TEXT = words (P): the law with its numbers, one line
%   stiffest    K = stiffest (P, X, STATE): greatest stiffness, among the displacements X and with the memory STATE, one row each, where
%               they are known ([]: not) [N/m]
%   softest     K = softest (P): least size of the stiffness, wherever it is and whatever was before [N/m]
%   viscous     C = viscous (P, X, F): greatest slope of its force over the velocity, among the displacements X and forces F of a result
%               where they are known ([]: not); its stability is that of a damper with this constant [N s/m]
%   at_least    [K, C] = at_least (P, X): of a law whose stiffness depends on the velocity, the least sizes of it and of the slope of the
%               force over the velocity, at the displacement X or anywhere ([]), whatever the velocity
%   traits      T = traits (P): what it needs otherwise than a law without memory, fields of qn.impl.traits
%   stored      V = stored (P, X, F, STATE, H): energy in it along a history, up to a constant (qn.impl.stored) [J]
%   reserve     V = reserve (P, X, STATE): energy that it can give back from the displacements X and its memory STATE, at most; Inf
%               where that has no bound (qn.impl.energy_limit) [J]
%   check       FOUND = check (LAW, X, H, STATE): what a user should know of a run with the step H, rows {code, level, text}; X and STATE
%               are displacements and memory, or the law's record, in a result, [] before the run (qn.check; docs/checks.md)
%   reach       R = reach (P): distance from 0 to where it first bends, such as a gap [m]
%   at_force    X = at_force (P, F): displacements, beside the ends of its definition, where it gives the forces F at rest
%   at_rest     LAW = at_rest (P): the law without memory that it becomes when nothing moves
%   extra       E = extra (E, P): the value E of an element with further fields; unpack then gets (OPT, IOPT, E)
%   prepare     P = prepare (WHO, P): the parameters as qn.law keeps them, such as those of a file that is compiled first
%   again       again (P): refuses parameters from a file that no longer mean the same law
%   unsaved     why no file can hold the law, a text with what to do instead
%
% Those from "softest" on may be [], or be left out: no stiffness everywhere, no force of the velocity, no stiffness that depends on it, no
% needs of its own, nothing stored, no bound, nothing to check, no bend, no such displacement, no force at rest without its past, nothing to
% prepare, always the same law, a law that a file can hold. The list is made once a session: "clear all" after a change to a law.
function list = law_list ()
  persistent made
  if isempty (made)
    each = {qn.impl.laws.power_law(), qn.impl.laws.exponential_law(), qn.impl.laws.table_law(), qn.impl.laws.damper_law(), ...
            qn.impl.laws.contact_law(), qn.impl.laws.surface_law(), qn.impl.laws.maxwell_law(), qn.impl.laws.dahl_law(), ...
            qn.impl.laws.stickslip_law(), qn.impl.laws.boucwen_law(), qn.impl.laws.clima2_law(), qn.impl.laws.radial_law(), ...
            qn.impl.laws.journal_law(), qn.impl.laws.compiled_law(), qn.impl.laws.function_law()};
    each = cellfun (@whole, each, 'UniformOutput', false);
    made = [each{:}];
  end
  list = made;
end

% All fields, in one order.
function l = whole (given)
  names = {'kind', 'keyword', 'parameters', 'pack', 'unpack', 'words', 'stiffest', 'softest', 'viscous', 'at_least', 'traits', 'stored', ...
           'reserve', 'check', 'reach', 'at_force', 'at_rest', 'extra', 'prepare', 'again', 'unsaved'};
  l = cell2struct (cell (numel (names), 1), names.', 1);
  for name = fieldnames (given).', l.(name{1}) = given.(name{1}); end
end

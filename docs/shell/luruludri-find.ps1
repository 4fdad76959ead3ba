# Completes the command line of luruludri-find. Made by: luruludri-find completion powershell
Register-ArgumentCompleter -Native -CommandName 'luruludri-find', 'luruludri-find.exe' -ScriptBlock {
    param($word, $ast, $cursor)
    $known = @{
        '' = [ordered]@{
            '-h' = 'Print this help.'
            '--help' = 'Print this help.'
            '-V' = 'Print the version.'
            '--version' = 'Print the version.'
            '--game' = 'Ask for this game only, letter case ignored. Can be given several times.'
            '--json' = 'Print JSON (docs/json.md), faults included.'
            '--pc' = 'Answer from this recorded PC, a file or a folder, and name what is wrong with it; - reads it from standard input.'
            '--plugin' = 'Load this plug-in instead of the one beside the program.'
            'find' = 'Ask for the games of a catalogue and for the VR runtimes, as is done without a command.'
            'list' = 'List everything installed that the plug-in sees, without a catalogue, each with a line to paste into one.'
            'runtimes' = 'Ask for the VR runtimes only.'
            'explain' = 'Explain why a game was found or not: what each finder looked for, what it saw, why it went on; of a game that the catalogue does not have, where it is installed.'
            'record' = 'Record what finders use of this PC into a new file (docs/recorded-pc.md), so that it can be looked at elsewhere.'
            'report' = 'Make a page of the answers, a new file for a browser, which carries a recording.'
            'unpack' = 'Make a folder of a recording, to look at it or to change it.'
            'locate' = 'Remember in the user''s settings the folder of the game with this key.'
            'forget' = 'Forget the folder of the game with this key.'
            'completion' = 'Print the completion script for a shell.'
            'manual' = 'Print this help as a manual page.'
        }
        'find' = [ordered]@{
            '-h' = 'Print this help.'
            '--help' = 'Print this help.'
            '--game' = 'Ask for this game only, letter case ignored. Can be given several times.'
            '--json' = 'Print JSON (docs/json.md), faults included.'
            '--pc' = 'Answer from this recorded PC, a file or a folder, and name what is wrong with it; - reads it from standard input.'
            '--plugin' = 'Load this plug-in instead of the one beside the program.'

        }
        'list' = [ordered]@{
            '-h' = 'Print this help.'
            '--help' = 'Print this help.'
            '--json' = 'Print JSON (docs/json.md), faults included.'
            '--pc' = 'Answer from this recorded PC, a file or a folder, and name what is wrong with it; - reads it from standard input.'
            '--plugin' = 'Load this plug-in instead of the one beside the program.'

        }
        'runtimes' = [ordered]@{
            '-h' = 'Print this help.'
            '--help' = 'Print this help.'
            '--json' = 'Print JSON (docs/json.md), faults included.'
            '--pc' = 'Answer from this recorded PC, a file or a folder, and name what is wrong with it; - reads it from standard input.'
            '--plugin' = 'Load this plug-in instead of the one beside the program.'

        }
        'explain' = [ordered]@{
            '-h' = 'Print this help.'
            '--help' = 'Print this help.'
            '--all' = 'Show long lists in full.'
            '--json' = 'Print JSON (docs/json.md), faults included.'
            '--pc' = 'Answer from this recorded PC, a file or a folder, and name what is wrong with it; - reads it from standard input.'
            '--plugin' = 'Load this plug-in instead of the one beside the program.'

        }
        'record' = [ordered]@{
            '-h' = 'Print this help.'
            '--help' = 'Print this help.'
            '--keep-names' = 'Leave the user''s and the PC''s names as they are.'
            '--pc' = 'Answer from this recorded PC, a file or a folder, and name what is wrong with it; - reads it from standard input.'
            '--plugin' = 'Load this plug-in instead of the one beside the program.'

        }
        'report' = [ordered]@{
            '-h' = 'Print this help.'
            '--help' = 'Print this help.'
            '--keep-names' = 'Leave the user''s and the PC''s names as they are.'
            '--pc' = 'Answer from this recorded PC, a file or a folder, and name what is wrong with it; - reads it from standard input.'
            '--plugin' = 'Load this plug-in instead of the one beside the program.'

        }
        'unpack' = [ordered]@{
            '-h' = 'Print this help.'
            '--help' = 'Print this help.'

        }
        'locate' = [ordered]@{
            '-h' = 'Print this help.'
            '--help' = 'Print this help.'
            '--pc' = 'Answer from this recorded PC, a file or a folder, and name what is wrong with it; - reads it from standard input.'
            '--plugin' = 'Load this plug-in instead of the one beside the program.'

        }
        'forget' = [ordered]@{
            '-h' = 'Print this help.'
            '--help' = 'Print this help.'
            '--pc' = 'Answer from this recorded PC, a file or a folder, and name what is wrong with it; - reads it from standard input.'
            '--plugin' = 'Load this plug-in instead of the one beside the program.'

        }
        'completion' = [ordered]@{
            '-h' = 'Print this help.'
            '--help' = 'Print this help.'
            'bash' = 'bash'
            'zsh' = 'zsh'
            'powershell' = 'powershell'
        }
        'manual' = [ordered]@{
            '-h' = 'Print this help.'
            '--help' = 'Print this help.'

        }
    }
    $command = ''
    foreach ($element in $ast.CommandElements | Select-Object -Skip 1) {
        if ($element.Extent.EndOffset -lt $cursor -and $known.ContainsKey("$element")) {
            $command = "$element"
            break
        }
    }
    # Where nothing fits, PowerShell completes names of files.
    $known[$command].GetEnumerator() | Where-Object { $_.Key -like "$word*" } | ForEach-Object {
        [System.Management.Automation.CompletionResult]::new($_.Key, $_.Key, 'ParameterValue', $_.Value)
    }
}

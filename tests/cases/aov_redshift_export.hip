set -g _HIP_SAVEVERSION = '19.5.303'
out/Redshift_ROP1.parm {
RS_outputFileNamePrefix	[ 0	locks=0 ]	(	"$HIP/render/$AOV/beauty_$F4"	)
RS_aovSuffix_1	[ 0	locks=0 ]	(	"diffuse"	)
RS_aovFileFormat_1	[ 0	locks=0 ]	(	".exr"	)
RS_aovCustomPrefix_2	[ 0	locks=0 ]	(	"$HIP/aov/$AOV/refl_$F4"	)
RS_aovSuffix_2	[ 0	locks=0 ]	(	"specular"	)
RS_aovFileFormat_2	[ 0	locks=0 ]	(	".exr"	)
RS_aovSuffix_20	[ 0	locks=0 ]	(	"ignored"	)
RS_outputFileFormat	[ 0	locks=0 ]	(	".exr"	)
RS_archive_enable	[ 0	locks=0 ]	(	"on"	)
RS_archive_file	[ 0	locks=0 ]	(	"$HIP/rs/$OS.$F4.rs"	)
}

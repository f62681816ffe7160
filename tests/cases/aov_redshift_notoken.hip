set -g _HIP_SAVEVERSION = '19.5.303'
out/rs_beauty.parm {
RS_outputFileFormat	[ 0	locks=0 ]	(	".exr"	)
RS_outputFileNamePrefix	[ 0	locks=0 ]	(	"$HIP/render/beauty_$F4"	)
RS_aovSuffix_3	[ 0	locks=0 ]	(	"diffuse"	)
RS_aovFileFormat_3	[ 0	locks=0 ]	(	".exr"	)
}
